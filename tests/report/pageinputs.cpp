#include "tests/report/pageinputs.h"

namespace recastor {

namespace {

/// Rows of 2048 terms, more than are kept of a dimension.
std::string TooLargeToCompare() {
    std::string rows = "(a + b)";
    for (int i = 1; i < 11; ++i) {
        rows += " > (a + b)";
    }
    return "TABLES /TABLE " + rows + " BY c.\n";
}

} // namespace

std::vector<PageInput> PageInputs() {
    return {
        {"pictures/toolarge.syn", TooLargeToCompare()},
    };
}

} // namespace recastor
