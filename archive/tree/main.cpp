// recastor-tree: converts every syntax file of a folder and reports on it.

#include "archive/tree/treeoptions.h"
#include "archive/tree/treerun.h"

int main(int argc, char* argv[]) {
    const auto [options, status] = recastor::ReadTreeOptions(argc, argv);
    if (!options) {
        return status;
    }
    return options->merge.empty() ? recastor::RunTree(*options) : recastor::RunMerge(*options);
}
