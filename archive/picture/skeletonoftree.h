/// The skeleton of what a TABLES command makes, read from its tree.
#pragma once

#include "archive/picture/tableskeleton.h"
#include "ctables/recastor/tbtrparsenode.h"

namespace recastor {

/// `root` is a tree as the parser made it: the translator has not changed it yet.
CommandSkeleton SkeletonOfTree(const TbTrParseNode& root);

} // namespace recastor
