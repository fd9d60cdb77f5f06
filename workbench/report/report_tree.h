// Model trees of a report: before and after side by side, changed rows marked.
#pragma once

#include <string>
#include <vector>

#include "workbench/report/run_record.h"
#include "workbench/report/tree_compare.h"

namespace wb {

// What of a tree is drawn; the rest is counted where it is missing. Changed rows go first.
struct TreeLimits {
  std::size_t rows = 500;
  int depth = 24;  // levels
};

// A nested list of the tree. `marks` has one entry a row. Linear in the rows, without recursion.
std::string DrawTree(const ModelTree& tree, const std::vector<RowMark>& marks,
                     const TreeLimits& limits);

// Both trees side by side, or one, folded, when nothing differs. Empty when there is neither.
std::string DrawTrees(const CommandRecord& command, const TreeLimits& limits);

}  // namespace wb
