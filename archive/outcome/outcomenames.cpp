#include "archive/outcome/outcomenames.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace recastor {

namespace {

// In the order of the enumerations.
constexpr std::array<std::string_view, 6> kStatusNames{"copied", "converted", "incomplete",
                                                       "ended",  "failed",    "skipped"};
constexpr std::array<std::string_view, 6> kKindNames{"tables",   "igraph", "comment",
                                                     "document", "data",   "other"};

template <typename Value, typename Names>
Value ValueOfName(const Names& names, std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        throw std::out_of_range("unknown name in a report");
    }
    return static_cast<Value>(found - names.begin());
}

} // namespace

std::string NameOf(FileStatus status) {
    return std::string(kStatusNames.at(static_cast<std::size_t>(status)));
}

std::string NameOf(ReportedKind kind) {
    return std::string(kKindNames.at(static_cast<std::size_t>(kind)));
}

FileStatus StatusOfName(std::string_view name) {
    return ValueOfName<FileStatus>(kStatusNames, name);
}

ReportedKind KindOfName(std::string_view name) {
    return ValueOfName<ReportedKind>(kKindNames, name);
}

} // namespace recastor
