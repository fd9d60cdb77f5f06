// Tells which rows of a model tree a command changed.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "workbench/report/run_record.h"

namespace wb {

inline constexpr std::size_t kNoParent = static_cast<std::size_t>(-1);

// For each row the index of the row it stands under.
std::vector<std::size_t> ParentsOf(const ModelTree& tree);

enum class RowMark : char {
  kSame,
  kTouched,  // the model's parameters changed
  kChanged,  // name, hidden, suppressed, missing
  kAdded,
  kRemoved,
};

// Which rows of `before` and `after` differ, found by their path of component ids. Trees of
// different models are not compared. Linear in the rows.
struct TreeMarks {
  std::vector<RowMark> before;
  std::vector<RowMark> after;
  bool AnyMarked() const;
};
TreeMarks CompareTrees(const ModelTree& before, const ModelTree& after,
                       const std::set<std::string>& touched_models);

// Whether both trees have the same rows, so that one drawing with marks shows both.
bool HaveSameRows(const ModelTree& before, const ModelTree& after);

}  // namespace wb
