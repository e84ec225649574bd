/// Inputs that are made up for the tests in a browser: each is for what a page must withstand or
/// tell.
#pragma once

#include <string>
#include <vector>

namespace recastor {

struct PageInput {
    std::string path; ///< below the source folder
    std::string text;
};

std::vector<PageInput> PageInputs();

} // namespace recastor
