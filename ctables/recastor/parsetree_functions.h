/// What the statistics of a table are made of.
#pragma once

#include "ctables/recastor/tbtrparsenode.h"

#include <string>

namespace recastor {

/// The new name of a percentage of cases (CPCT) or responses (RPCT, CSPCT), its kind and flag. They
/// depend on the command's BASE and GBASE; `mr` says that it is meant for a group.
struct FunctionOutput {
    const char* fNewName;
    char fKind;
    bool fIsPercentage;
};
FunctionOutput CPCTMapper(bool mr, const TbTrParseNode& node);
FunctionOutput RPCTMapper(bool mr, const TbTrParseNode& node);

// The parts of a TBI_FULLSTATFUNCTION node.

bool IsUnweighted(const TbTrParseNode& function);
/// The name with its optional number.
const TbTrParseNode& FunctionName(const TbTrParseNode& function);
/// The list of TBI_STATFUNCARG nodes; null when there are no arguments.
const TbTrParseNode* FunctionArguments(const TbTrParseNode& function);
/// The list of base variables; null when there is none.
const TbTrParseNode* BaseVariables(const TbTrParseNode& function);

// The parts of a TBI_STATFUNCARG node; each null when it is not there.

const TbTrParseNode* ArgumentVariable(const TbTrParseNode& argument);
const TbTrParseNode* ArgumentFormat(const TbTrParseNode& argument);
const TbTrParseNode* ArgumentLabel(const TbTrParseNode& argument);

/// Whether the arguments name variables; else there are none at all (null), or a label and a format
/// alone, for whatever the function applies to.
bool NamesVariables(const TbTrParseNode* arguments);

/// The argument whose variable has the (upper-cased) name; null when there is none.
const TbTrParseNode* FindArgument(const TbTrParseNode* arguments, const std::string& name);

} // namespace recastor
