// Draws model trees as nested lists: what to draw of a large one, and how a row looks.
#include "workbench/report/report_tree.h"

#include <algorithm>
#include <set>

#include "workbench/base/html_text.h"
#include "workbench/report/report_text.h"

namespace wb {
namespace {

// In trees of more rows than this, branches and runs of components without a change are folded.
constexpr std::size_t kMostRowsUnfolded = 60;
constexpr std::size_t kFewestRowsFolded = 4;
constexpr std::size_t kOthersInLargeTrees = 20;

const char* SymbolOf(TreeIcon icon) {
  switch (icon) {
    case TreeIcon::kAssembly:
      return "assembly";
    case TreeIcon::kPart:
      return "part";
    case TreeIcon::kSheetMetal:
      return "sheetmetal";
    case TreeIcon::kSkeleton:
      return "skeleton";
    case TreeIcon::kDrawing:
      return "drawing";
    case TreeIcon::kManufacturing:
      return "manufacturing";
  }
  return "part";
}

const char* MarkClass(RowMark mark) {
  switch (mark) {
    case RowMark::kSame:
      return "";
    case RowMark::kTouched:
      return " touched";
    case RowMark::kChanged:
      return " changed";
    case RowMark::kAdded:
      return " added";
    case RowMark::kRemoved:
      return " removed";
  }
  return "";
}

// Marked rows and the rows above them first, then from the top, up to the limits. A row is never
// drawn without its parent. Of a large tree few unmarked rows are drawn, so that the marked ones
// are found.
std::vector<bool> ChooseRows(const ModelTree& tree, const std::vector<RowMark>& marks,
                             const std::vector<std::size_t>& parents, const TreeLimits& limits) {
  std::vector<bool> chosen(tree.rows.size(), false);
  std::size_t count = 0;
  for (std::size_t i = 0; i < tree.rows.size() && count < limits.rows; ++i) {
    if (marks[i] == RowMark::kSame || tree.rows[i].depth > limits.depth) continue;
    for (std::size_t at = i; at != kNoParent && !chosen[at]; at = parents[at]) {
      chosen[at] = true;
      ++count;
    }
  }
  const bool large = tree.rows.size() > limits.rows;
  const std::size_t most =
      large && count > 0 ? std::min(count + kOthersInLargeTrees, limits.rows) : limits.rows;
  for (std::size_t i = 0; i < tree.rows.size() && count < most; ++i) {
    if (chosen[i] || tree.rows[i].depth > limits.depth) continue;
    chosen[i] = true;
    ++count;
  }
  return chosen;
}

std::vector<bool> HoldsMark(const std::vector<RowMark>& marks,
                            const std::vector<std::size_t>& parents) {
  std::vector<bool> holds(marks.size(), false);
  for (std::size_t i = marks.size(); i-- > 0;) {
    if (parents[i] == kNoParent) continue;
    if (marks[i] != RowMark::kSame || holds[i]) holds[parents[i]] = true;
  }
  return holds;
}

class TreePainter {
 public:
  TreePainter(const ModelTree& tree, const std::vector<RowMark>& marks, const TreeLimits& limits,
              const ModelTree* before)
      : tree_(tree),
        before_(before),
        marks_(marks),
        limits_(limits),
        parents_(ParentsOf(tree)),
        chosen_(ChooseRows(tree, marks, parents_, limits)),
        holds_mark_(HoldsMark(marks, parents_)) {}

  std::string Paint() {
    html_ = "<ul class=\"tree\">";
    for (std::size_t i = 0; i < tree_.rows.size(); ++i) {
      if (chosen_[i]) {
        PaintGap();
        i = PaintRowOrRun(i);
      } else if (gap_++ == 0) {
        gap_depth_ = tree_.rows[i].depth;
      }
    }
    PaintGap();
    if (tree_.left_out > 0) {
      gap_ = tree_.left_out;
      gap_depth_ = 1;
      PaintGap();
    }
    CloseTo(0);
    return html_ + "</ul>";
  }

 private:
  void CloseTo(int depth) {
    for (; open_ > depth; --open_) html_ += "</ul></details></li>";
  }

  bool HasRows(std::size_t i) const {
    return i + 1 < tree_.rows.size() && tree_.rows[i + 1].depth > tree_.rows[i].depth;
  }

  // Gives the last row painted.
  std::size_t PaintRowOrRun(std::size_t i) {
    const int depth = tree_.rows[i].depth;
    CloseTo(depth);
    std::size_t end = i;
    if (tree_.rows.size() > kMostRowsUnfolded) {
      while (end < tree_.rows.size() && chosen_[end] && marks_[end] == RowMark::kSame &&
             tree_.rows[end].depth == depth && !HasRows(end)) {
        ++end;
      }
    }
    if (end - i < kFewestRowsFolded) {
      PaintRow(i);
      return i;
    }
    html_ += "<li class=\"gap\"><details><summary>" + Counted(end - i, "row") +
             " without a change</summary><ul>";
    for (; i < end; ++i) PaintRow(i);
    html_ += "</ul></details></li>";
    return end - 1;
  }

  void PaintRow(std::size_t i) {
    const TreeRow& row = tree_.rows[i];
    html_ += std::string("<li class=\"") + (row.hidden ? "hid" : "") +
             (row.suppressed ? " sup" : "") + "\">";
    const std::string mark = MarkClass(marks_[i]);
    if (!HasRows(i)) {
      html_ += "<div class=\"row" + mark + "\">" + RowContent(i) + "</div></li>";
      return;
    }
    const bool unfold = row.depth == 0 || holds_mark_[i] || tree_.rows.size() <= kMostRowsUnfolded;
    html_ += unfold ? "<details open>" : "<details>";
    html_ += "<summary class=\"row" + mark + "\">" + RowContent(i) + "</summary><ul>";
    ++open_;
  }

  std::string RowContent(std::size_t i) const {
    const TreeRow& row = tree_.rows[i];
    const RowMark mark = marks_[i];
    std::string html = std::string("<svg class=\"i\"><use href=\"#i-") + SymbolOf(row.icon) +
                       "\"/></svg><span class=\"n\">" + EscapeHtml(row.name) + "</span>";
    if (row.hidden) html += "<small>hidden</small>";
    if (row.suppressed) html += "<small>suppressed</small>";
    if (row.missing) html += "<small class=\"bad\">not in session</small>";
    if (before_ != nullptr) html += WhatWas(before_->rows[i], row);
    if (mark == RowMark::kTouched) html += "<small>parameters</small>";
    if (mark == RowMark::kAdded) html += "<small>new</small>";
    if (mark == RowMark::kRemoved) html += "<small>removed</small>";
    return html;
  }

  static std::string WhatWas(const TreeRow& was, const TreeRow& is) {
    std::string html;
    const auto tell = [&](bool before, bool now, const char* yes, const char* no) {
      if (before != now) html += std::string("<small>was ") + (before ? yes : no) + "</small>";
    };
    tell(was.hidden, is.hidden, "hidden", "shown");
    tell(was.suppressed, is.suppressed, "suppressed", "active");
    tell(was.missing, is.missing, "not in session", "in session");
    return html;
  }

  void PaintGap() {
    if (gap_ == 0) return;
    CloseTo(std::min(gap_depth_, open_));
    html_ += "<li class=\"gap\">… ";
    html_ += gap_depth_ > limits_.depth
                 ? Counted(gap_, "row") + " below level " + std::to_string(limits_.depth)
                 : Counted(gap_, "more row");
    html_ += "</li>";
    gap_ = 0;
  }

  const ModelTree& tree_;
  const ModelTree* const before_;
  const std::vector<RowMark>& marks_;
  const TreeLimits limits_;
  const std::vector<std::size_t> parents_;
  const std::vector<bool> chosen_;
  const std::vector<bool> holds_mark_;
  std::string html_;
  int open_ = 0;  // rows whose list is open
  std::uint64_t gap_ = 0;
  int gap_depth_ = 0;
};

constexpr const char* kLegend =
    "<p class=\"legend\"><span class=\"hid\">grey</span> hidden · <s>struck</s> suppressed · "
    "<mark>yellow</mark> changed · <span class=\"touched\">blue</span> parameters changed</p>";

std::string SizeOf(const ModelTree& tree) {
  return " <small>" + Counted(tree.rows.size() + tree.left_out, "row") + "</small>";
}

std::string Column(const char* caption, const ModelTree& tree, const std::vector<RowMark>& marks,
                   const TreeLimits& limits) {
  std::string html = std::string("<div><h4>") + caption;
  if (tree.rows.empty()) return html + "</h4><p class=\"more\">no model</p></div>";
  return html + SizeOf(tree) + "</h4>" + DrawTree(tree, marks, limits) + "</div>";
}

}  // namespace

std::string DrawTree(const ModelTree& tree, const std::vector<RowMark>& marks,
                     const TreeLimits& limits, const ModelTree* before) {
  return TreePainter(tree, marks, limits, before).Paint();
}

std::string DrawTrees(const CommandRecord& command, const TreeLimits& limits) {
  const ModelTree& before = command.tree_before;
  const ModelTree& after = command.tree_after;
  if (before.rows.empty() && after.rows.empty()) return {};
  std::set<std::string> touched;
  for (const ValueChange& change : command.parameters) touched.insert(change.model);
  const TreeMarks marks = CompareTrees(before, after, touched);
  if (before == after && !marks.AnyMarked()) {
    return "<details class=\"fold\"><summary>Model tree, the same before and after" +
           SizeOf(after) + "</summary>" + DrawTree(after, marks.after, limits) + "</details>";
  }
  std::string html = std::string("<h3>Model tree</h3>") + kLegend;
  if (HaveSameRows(before, after)) {
    return html + "<div class=\"sides one\"><div><h4>Before and after" + SizeOf(after) + "</h4>" +
           DrawTree(after, marks.after, limits, &before) + "</div></div>";
  }
  html += "<div class=\"sides\">" + Column("Before", before, marks.before, limits);
  return html + Column("After", after, marks.after, limits) + "</div>";
}

}  // namespace wb
