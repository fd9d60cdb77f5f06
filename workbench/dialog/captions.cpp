// Finds the labels of fields by their places in the grids; what a user calls a field.
#include "workbench/dialog/captions.h"

#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/dialog/dialog.h"

namespace wb {
namespace {

bool NeedsCaption(const FieldResource& field) {
  return FindAttributeRule(field.kind, "Label") == nullptr && field.kind != FieldKind::kTab &&
         field.kind != FieldKind::kSeparator;
}

class CaptionSearch {
 public:
  explicit CaptionSearch(const DialogResource& resource) : resource_(resource) {}

  void Search(const LayoutGrid& grid) {
    for (const LayoutCell& cell : grid.cells) {
      if (!cell.nested.empty()) {
        Search(cell.nested.front());
      } else if (resource_.Find(cell.component)->kind == FieldKind::kLabel) {
        if (!Take(grid, cell.component, cell.row, cell.column + 1)) {
          Take(grid, cell.component, cell.row + 1, cell.column);
        }
      }
    }
  }

  Captions captions;

 private:
  // Gives the label to the field at that place, if there is one that wants it.
  bool Take(const LayoutGrid& grid, const std::string& label, int row, int column) {
    const FieldResource* const field = FirstAt(grid, row, column);
    return field != nullptr && NeedsCaption(*field) && captions.emplace(field->name, label).second;
  }

  // Of a grid inside the cell the first field; null: the cell is empty.
  const FieldResource* FirstAt(const LayoutGrid& grid, int row, int column) const {
    const auto cell = std::ranges::find_if(
        grid.cells, [&](const LayoutCell& at) { return at.row == row && at.column == column; });
    if (cell == grid.cells.end()) return nullptr;
    const LayoutCell* first = &*cell;
    while (!first->nested.empty()) {
      if (first->nested.front().cells.empty()) return nullptr;
      first = &first->nested.front().cells.front();
    }
    return resource_.Find(first->component);
  }

  const DialogResource& resource_;
};

std::string_view WithoutColon(std::string_view label) {
  for (const std::string_view colon : {" ", ":", "：", " "}) {
    while (label.ends_with(colon)) label.remove_suffix(colon.size());
  }
  return label;
}

bool IsUsedByHand(const Field& field) {
  return field.kind != FieldKind::kLabel && field.kind != FieldKind::kSubLayout &&
         field.kind != FieldKind::kSeparator;
}

}  // namespace

Captions CaptionsOf(const DialogResource& resource) {
  CaptionSearch search(resource);
  search.Search(resource.dialog.layout);
  for (const FieldResource& field : resource.components) search.Search(field.layout);
  return search.captions;
}

std::string Dialog::LabelOf(const Field& field) const {
  if (!field.label.empty()) return field.label;
  const auto caption = captions_.find(field.name);
  return caption == captions_.end() ? std::string() : Lookup(caption->second)->label;
}

std::string Dialog::FullLabelOf(const Field& field) const {
  const Field* group = &field;
  do {
    group = group->parent.empty() ? nullptr : Lookup(group->parent);
  } while (group != nullptr && group->label.empty());
  const std::string label = LabelOf(field);
  return group == nullptr ? label : group->label + "/" + label;
}

bool Dialog::IsCaption(const Field& field) const {
  return std::ranges::any_of(captions_,
                             [&](const auto& entry) { return entry.second == field.name; });
}

std::vector<const Field*> Dialog::FieldsCalled(std::string_view text) const {
  if (const Field* const named = Lookup(text)) return {named};
  const std::string_view wanted = WithoutColon(text);
  std::vector<const Field*> called;
  for (const bool by_hand : {true, false}) {
    for (const Field& field : components_) {
      if (IsUsedByHand(field) != by_hand || IsCaption(field) || LabelOf(field).empty()) continue;
      if (WithoutColon(LabelOf(field)) == wanted || WithoutColon(FullLabelOf(field)) == wanted) {
        called.push_back(&field);
      }
    }
    if (!called.empty()) break;
  }
  return called;
}

}  // namespace wb
