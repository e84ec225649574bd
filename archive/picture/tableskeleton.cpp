#include "archive/picture/tableskeleton.h"

namespace recastor {

bool IsTooLarge(const TermsSize& size) {
    constexpr double kMostVariables = 5000;
    constexpr double kDeepest = 64;
    return size.variables > kMostVariables || size.longest > kDeepest;
}

std::string TextOfLiteral(const std::string& literal) {
    std::string text;
    char quote = 0; // the one that the segment in hand ends with
    for (std::size_t i = 0; i < literal.size(); ++i) {
        const char c = literal[i];
        if (quote == 0) {
            quote = c == '\'' || c == '"' ? c : '\0'; // between segments: blanks and plus signs
        } else if (c != quote) {
            text += c;
        } else if (i + 1 < literal.size() && literal[i + 1] == quote) {
            text += c;
            ++i;
        } else {
            quote = 0;
        }
    }
    return text;
}

} // namespace recastor
