#include "tests/support/skeletondifferences.h"

namespace recastor {

namespace {

using Dimensions = std::vector<SkeletonDimension>;

/// A dimension that is not there is like an empty one.
SkeletonDimension DimensionAt(const Dimensions& dimensions, std::size_t index) {
    return index < dimensions.size() ? dimensions[index] : SkeletonDimension();
}

std::vector<std::string> DifferencesOfTables(const TableSkeleton& one, const TableSkeleton& other) {
    const auto differs = [&](std::size_t dimension) {
        return DimensionAt(one.dimensions, dimension) != DimensionAt(other.dimensions, dimension);
    };
    const struct {
        const char* name;
        bool differs;
    } parts[] = {
        {"rows", differs(0)},
        {"columns", differs(1)},
        {"layers", differs(2)},
        {"names of statistics", one.statisticsSide != other.statisticsSide ||
                                    one.areStatisticsNamed != other.areStatisticsNamed},
        {"category labels", one.movedLabels != other.movedLabels},
        {"missing values", one.isMissingIncluded != other.isMissingIncluded},
        {"order of categories", one.sorts != other.sorts},
        {"title", one.title != other.title},
        {"caption", one.caption != other.caption},
        {"corner", one.corner != other.corner},
    };
    std::vector<std::string> names;
    for (const auto& part : parts) {
        if (part.differs) {
            names.emplace_back(part.name);
        }
    }
    return names;
}

} // namespace

std::vector<std::string> DifferencesOf(const CommandSkeleton& one, const CommandSkeleton& other) {
    std::vector<std::string> differences;
    if (one.areEmptyCellsZero != other.areEmptyCellsZero) {
        differences.emplace_back("empty cells");
    }
    if (one.missingText != other.missingText) {
        differences.emplace_back("text of missing cells");
    }
    if (one.tables.size() != other.tables.size()) {
        differences.emplace_back("number of tables");
        return differences;
    }
    for (std::size_t i = 0; i < one.tables.size(); ++i) {
        for (const std::string& name : DifferencesOfTables(one.tables[i], other.tables[i])) {
            differences.push_back("table " + std::to_string(i + 1) + ": " + name);
        }
    }
    return differences;
}

} // namespace recastor
