/// A reader of the GGRAPH commands that the converter writes and of their GPL. It knows what these
/// must look like and nothing of how they are made, so that it can judge them.
#pragma once

#include <string>
#include <vector>

namespace recastor {

/// What is wrong with a GGRAPH command and its GPL block; empty when nothing is: the text is well
/// formed, every name is declared and every declared name used, the command lists just the
/// variables that are read, and every dimension named is one that the chart has.
std::string GGraphFault(const std::string& command);

/// The new forms of an output file's IGRAPH commands, in their order: what stands between the
/// comment that begins a GGRAPH command and the one that ends it.
std::vector<std::string> GGraphFormsIn(const std::string& output);

} // namespace recastor
