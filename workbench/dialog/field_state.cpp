// Live state of the components of a dialog.
#include "workbench/dialog/field_state.h"

#include <algorithm>
#include <set>
#include <utility>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

bool Contains(const std::vector<std::string>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TableModel InitialTable(const FieldResource& resource) {
  TableModel table;
  table.InsertColumns("", resource.Texts("ColumnNames"));
  if (resource.Has("ColumnLabels")) table.SetColumnLabels(resource.Texts("ColumnLabels"));
  if (resource.Has("ColumnWidths")) table.SetColumnWidths(resource.Numbers("ColumnWidths"));
  table.InsertRows("", resource.Texts("RowNames"));
  if (resource.Has("RowLabels")) table.SetRowLabels(resource.Texts("RowLabels"));
  table.SetPolicy(resource.Number("SelectionPolicy", static_cast<int>(SelectionPolicy::kSingle)));
  return table;
}

FieldState InitialState(const FieldResource& resource) {
  switch (resource.kind) {
    case FieldKind::kRadioGroup:
    case FieldKind::kOptionMenu:
    case FieldKind::kList:
      return ChoiceState(resource);
    case FieldKind::kInputPanel:
    case FieldKind::kTextArea:
      return TextState(resource);
    case FieldKind::kCheckButton:
      return CheckState{resource.Flag("Set", false)};
    case FieldKind::kTable:
      return InitialTable(resource);
    default:
      return std::monostate();
  }
}

}  // namespace

ChoiceState::ChoiceState(const FieldResource& resource)
    : names_(resource.Texts("Names")),
      labels_(resource.Texts("Labels")),
      selected_(resource.Texts("SelectedNames")) {
  if (resource.Has("Value")) selected_ = {resource.Text("Value")};
  if (resource.kind == FieldKind::kList) {
    policy_ = static_cast<SelectionPolicy>(
        resource.Number("SelectionPolicy", static_cast<int>(SelectionPolicy::kSingle)));
  }
  // An option menu always shows one of its items; a radio group may start with none pressed.
  if (resource.kind == FieldKind::kOptionMenu && selected_.empty() && !names_.empty()) {
    selected_ = {names_.front()};
  }
}

std::string ChoiceState::LabelOf(std::string_view name) const {
  const auto found = std::find(names_.begin(), names_.end(), name);
  if (found == names_.end()) return {};
  if (labels_.empty()) return *found;
  return labels_[static_cast<std::size_t>(found - names_.begin())];
}

std::vector<std::string> ChoiceState::NamesOf(const std::vector<std::string>& items) const {
  std::vector<std::string> names = items;
  for (std::string& item : names) {
    const auto labelled = std::find(labels_.begin(), labels_.end(), item);
    if (Contains(names_, item) || labelled == labels_.end()) continue;
    item = names_[static_cast<std::size_t>(labelled - labels_.begin())];
  }
  return names;
}

bool ChoiceState::IsSelected(std::string_view name) const {
  return Contains(selected_, name);
}

UiStatus ChoiceState::SetNames(const std::vector<std::string>& names) {
  const std::set<std::string> distinct(names.begin(), names.end());
  if (distinct.size() != names.size() || distinct.count("") != 0) return UiStatus::kBadArgument;
  names_ = names;
  if (labels_.size() != names_.size()) labels_.clear();
  std::erase_if(selected_, [&](const std::string& name) { return distinct.count(name) == 0; });
  return UiStatus::kOk;
}

UiStatus ChoiceState::SetLabels(const std::vector<std::string>& labels) {
  if (labels.size() != names_.size()) return UiStatus::kBadArgument;
  labels_ = labels;
  return UiStatus::kOk;
}

UiStatus ChoiceState::Select(const std::vector<std::string>& names) {
  const bool known = std::all_of(names.begin(), names.end(),
                                 [&](const std::string& name) { return Contains(names_, name); });
  if (!known) return UiStatus::kNotFound;
  if (!PolicyAllows(policy_, names.size())) return UiStatus::kBadArgument;
  selected_ = names;
  return UiStatus::kOk;
}

UiStatus ChoiceState::SetPolicy(int policy) {
  if (!IsPolicy(policy)) return UiStatus::kBadArgument;
  policy_ = static_cast<SelectionPolicy>(policy);
  return UiStatus::kOk;
}

TextState::TextState(const FieldResource& resource)
    : value_(resource.Text("Value")),
      max_length_(static_cast<std::size_t>(resource.Number("MaxLen", 0))),
      editable_(resource.Flag("Editable", true)),
      many_lines_(resource.kind == FieldKind::kTextArea) {}

UiStatus TextState::SetValue(std::string_view value) {
  if (max_length_ != 0 && WideLength(value) > max_length_) return UiStatus::kBadArgument;
  if (!many_lines_ && value.find('\n') != std::string_view::npos) return UiStatus::kBadArgument;
  value_ = value;
  return UiStatus::kOk;
}

Field::Field(const FieldResource& resource)
    : kind(resource.kind),
      name(resource.name),
      parent(resource.parent),
      help_text(resource.Text("HelpText")),
      enabled(resource.Flag("Sensitive", true)),
      visible(resource.Flag("Visible", true)),
      state(InitialState(resource)) {
  if (FindAttributeRule(kind, "Label") != nullptr) label = resource.Text("Label");
}

}  // namespace wb
