#include "tests/support/dumpskeleton.h"

#include "archive/picture/tableskeleton.h"

namespace recastor {

namespace {

std::string DumpStatistics(const std::vector<SkeletonStatistic>& statistics) {
    std::string dump;
    for (const SkeletonStatistic& one : statistics) {
        dump += (dump.empty() ? "" : ",") + one.function;
        dump += one.label ? " '" + *one.label + "'" : "";
        dump += one.format ? ' ' + *one.format : "";
    }
    return dump;
}

std::string DumpVariable(const SkeletonVariable& variable) {
    std::string dump = variable.name + '[' + variable.kind + ']';
    dump += variable.label ? "'" + *variable.label + "'" : "";
    if (variable.total) {
        dump += (variable.total->isAfter ? "+after'" : "+before'") + variable.total->label + "'";
    }
    const std::string totals = DumpStatistics(variable.totalStatistics);
    const std::string cells = DumpStatistics(variable.statistics);
    if (!cells.empty() || !totals.empty()) {
        dump += '{' + cells + (totals.empty() ? "" : " | " + totals) + '}';
    }
    return dump;
}

std::string DumpDimension(const SkeletonDimension& dimension) {
    std::string dump;
    for (const SkeletonTerm& term : dimension.terms) {
        dump += dump.empty() ? "" : " + ";
        for (std::size_t i = 0; i < term.size(); ++i) {
            dump += (i > 0 ? ">" : "") + DumpVariable(term[i]);
        }
    }
    return dimension.isTooLarge ? "..." : dump.empty() ? "-" : dump;
}

} // namespace

std::string DumpDimensions(const TableSkeleton& table) {
    std::string dump;
    for (const SkeletonDimension& dimension : table.dimensions) {
        dump += (dump.empty() ? "" : " BY ") + DumpDimension(dimension);
    }
    return dump;
}

} // namespace recastor
