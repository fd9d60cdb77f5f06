// Model trees of a report with changed rows marked: one where the rows are the same before and
// after, both side by side where they are not.
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

// A nested list of the tree. `marks` has one entry a row. Changed rows say what they were in
// `before`, a tree of the same rows. Linear in the rows, without recursion.
std::string DrawTree(const ModelTree& tree, const std::vector<RowMark>& marks,
                     const TreeLimits& limits, const ModelTree* before = nullptr);

// Both trees side by side, one where only marks differ, folded when nothing does. Empty when there
// is neither.
std::string DrawTrees(const CommandRecord& command, const TreeLimits& limits);

}  // namespace wb
