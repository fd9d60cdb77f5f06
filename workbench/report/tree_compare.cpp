// Compares model trees row by row.
#include "workbench/report/tree_compare.h"

#include <algorithm>
#include <unordered_map>

namespace wb {
namespace {

// Spreads bits so that paths of small ids give keys that practically never meet.
std::uint64_t Mixed(std::uint64_t key, std::uint64_t value) {
  key += value + 0x9e3779b97f4a7c15u;
  key = (key ^ (key >> 30)) * 0xbf58476d1ce4e5b9u;
  key = (key ^ (key >> 27)) * 0x94d049bb133111ebu;
  return key ^ (key >> 31);
}

// A key for each row from the component ids that lead to it. Components that share an id in one
// parent are told apart by their order.
std::vector<std::uint64_t> KeysOf(const ModelTree& tree) {
  const std::vector<std::size_t> parents = ParentsOf(tree);
  std::vector<std::uint64_t> keys(tree.rows.size());
  std::unordered_map<std::uint64_t, std::uint64_t> seen;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::uint64_t parent = parents[i] == kNoParent ? 0 : keys[parents[i]];
    const std::uint64_t key = Mixed(parent, static_cast<std::uint64_t>(tree.rows[i].id));
    keys[i] = Mixed(key, seen[key]++);
  }
  return keys;
}

bool SameModel(const ModelTree& before, const ModelTree& after) {
  return !before.rows.empty() && !after.rows.empty() &&
         before.rows.front().name == after.rows.front().name;
}

void MarkDifferences(const ModelTree& before, const ModelTree& after, TreeMarks& marks) {
  const std::vector<std::uint64_t> old_keys = KeysOf(before);
  const std::vector<std::uint64_t> new_keys = KeysOf(after);
  std::unordered_map<std::uint64_t, std::size_t> old_rows;
  for (std::size_t i = 0; i < old_keys.size(); ++i) old_rows.emplace(old_keys[i], i);
  // A row that is gone from a cut tree may merely have moved beyond the cut.
  if (after.left_out == 0) std::fill(marks.before.begin(), marks.before.end(), RowMark::kRemoved);
  for (std::size_t i = 0; i < new_keys.size(); ++i) {
    const auto found = old_rows.find(new_keys[i]);
    if (found == old_rows.end()) {
      if (before.left_out == 0) marks.after[i] = RowMark::kAdded;
      continue;
    }
    const bool same = before.rows[found->second] == after.rows[i];
    marks.after[i] = marks.before[found->second] = same ? RowMark::kSame : RowMark::kChanged;
  }
}

void MarkTouched(const ModelTree& tree, const std::set<std::string>& models,
                 std::vector<RowMark>& marks) {
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (marks[i] == RowMark::kSame && models.contains(tree.rows[i].name)) {
      marks[i] = RowMark::kTouched;
    }
  }
}

bool AnyIn(const std::vector<RowMark>& marks) {
  return std::any_of(marks.begin(), marks.end(),
                     [](RowMark mark) { return mark != RowMark::kSame; });
}

}  // namespace

bool TreeMarks::AnyMarked() const {
  return AnyIn(before) || AnyIn(after);
}

std::vector<std::size_t> ParentsOf(const ModelTree& tree) {
  std::vector<std::size_t> parents;
  std::vector<std::size_t> path;  // the latest row of each depth
  parents.reserve(tree.rows.size());
  for (std::size_t i = 0; i < tree.rows.size(); ++i) {
    path.resize(std::min<std::size_t>(path.size(), static_cast<std::size_t>(tree.rows[i].depth)));
    parents.push_back(path.empty() ? kNoParent : path.back());
    path.push_back(i);
  }
  return parents;
}

TreeMarks CompareTrees(const ModelTree& before, const ModelTree& after,
                       const std::set<std::string>& touched_models) {
  TreeMarks marks;
  marks.before.assign(before.rows.size(), RowMark::kSame);
  marks.after.assign(after.rows.size(), RowMark::kSame);
  if (SameModel(before, after)) MarkDifferences(before, after, marks);
  MarkTouched(before, touched_models, marks.before);
  MarkTouched(after, touched_models, marks.after);
  return marks;
}

bool HaveSameRows(const ModelTree& before, const ModelTree& after) {
  const auto same = [](const TreeRow& a, const TreeRow& b) {
    return a.depth == b.depth && a.id == b.id && a.name == b.name && a.icon == b.icon;
  };
  return before.left_out == after.left_out &&
         std::equal(before.rows.begin(), before.rows.end(), after.rows.begin(), after.rows.end(),
                    same);
}

}  // namespace wb
