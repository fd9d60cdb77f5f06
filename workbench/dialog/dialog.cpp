// Live state of one created dialog.
#include "workbench/dialog/dialog.h"

#include <algorithm>
#include <utility>

#include "workbench/base/text.h"

namespace wb {
namespace {

UserOutcome Refuse(const Field& component, const std::string& why) {
  return {
      UiEvent::kNone, std::string(KindName(component.kind)) + " " + component.name + " " + why, {}};
}

UserOutcome Fires(UiEvent event) {
  return {event, {}, {}};
}

std::string SelectionRefusal(UiStatus status, const std::vector<std::string>& names,
                             const std::vector<std::string>& known, const char* item) {
  if (status == UiStatus::kBadArgument) {
    return "cannot have " + std::to_string(names.size()) + " " + item + "s selected at once";
  }
  constexpr std::size_t kMostNamed = 20;
  std::vector<std::string> shown(
      known.begin(),
      known.begin() + static_cast<std::ptrdiff_t>(std::min(known.size(), kMostNamed)));
  if (known.size() > kMostNamed) shown.push_back("...");
  return std::string("has no ") + item + " " + Join(" or no ", names) +
         (shown.empty() ? "; it is empty" : "; it has " + Join(", ", shown));
}

}  // namespace

Dialog::Dialog(DialogResource resource)
    : resource_(std::move(resource)),
      title_(resource_.dialog.Text("Label")),
      captions_(CaptionsOf(resource_)) {
  components_.reserve(resource_.components.size());
  for (const FieldResource& component : resource_.components) {
    index_.emplace(component.name, components_.size());
    components_.emplace_back(component);
  }
}

const Field* Dialog::Lookup(std::string_view name) const {
  const auto found = index_.find(std::string(name));
  if (found != index_.end()) return &components_[found->second];
  const auto in_cell = cell_fields_.find(std::string(name));
  const bool is_there = in_cell != cell_fields_.end() && IsThere(in_cell->second);
  return is_there ? in_cell->second.field.get() : nullptr;
}

bool Dialog::IsThere(const CellField& held) const {
  const auto& table = std::get<TableModel>(components_[index_.at(held.table)].state);
  std::string name;
  return table.GetComponent(held.row, held.column, &name) == UiStatus::kOk &&
         name == held.field->name;
}

Field* Dialog::Lookup(std::string_view name) {
  return const_cast<Field*>(std::as_const(*this).Lookup(name));
}

UiStatus Dialog::Find(FieldKind kind, std::string_view name, Field** component) {
  Field* found = Lookup(name);
  if (!found) return UiStatus::kNoField;
  if (found->kind != kind) return UiStatus::kWrongKind;
  *component = found;
  return UiStatus::kOk;
}

UiStatus Dialog::SetEnabled(FieldKind kind, std::string_view name, bool enabled) {
  Field* component = nullptr;
  const UiStatus status = Find(kind, name, &component);
  if (status == UiStatus::kOk) component->enabled = enabled;
  return status;
}

UiStatus Dialog::SetVisible(FieldKind kind, std::string_view name, bool visible) {
  Field* component = nullptr;
  const UiStatus status = Find(kind, name, &component);
  if (status == UiStatus::kOk) component->visible = visible;
  return status;
}

UiStatus Dialog::SetLabel(FieldKind kind, std::string_view name, std::string_view label) {
  Field* component = nullptr;
  const UiStatus status = Find(kind, name, &component);
  if (status != UiStatus::kOk) return status;
  if (!FindAttributeRule(kind, "Label")) return UiStatus::kWrongKind;
  component->label = label;
  return UiStatus::kOk;
}

UiStatus Dialog::GetOptionValue(std::string_view name, std::string* item) const {
  const Field* component = Lookup(name);
  if (!component) return UiStatus::kNoField;
  if (component->kind != FieldKind::kOptionMenu) return UiStatus::kWrongKind;
  const std::vector<std::string>& selected = std::get<ChoiceState>(component->state).Selected();
  *item = selected.empty() ? std::string() : selected.front();
  return UiStatus::kOk;
}

UiStatus Dialog::SetOptionValue(std::string_view name, const std::string& item) {
  ChoiceState* choice = nullptr;
  const UiStatus status = Find(FieldKind::kOptionMenu, name, &choice);
  return status == UiStatus::kOk ? choice->Select({item}) : status;
}

std::string Dialog::OptionLabel(std::string_view name, const std::string& item) const {
  const Field* field = Lookup(name);
  const auto* choice = field == nullptr ? nullptr : std::get_if<ChoiceState>(&field->state);
  const std::string label = choice == nullptr ? std::string() : choice->LabelOf(item);
  return label.empty() ? item : label;
}

std::string Dialog::OptionNamed(std::string_view name, const std::string& label) const {
  const Field* field = Lookup(name);
  const auto* choice = field == nullptr ? nullptr : std::get_if<ChoiceState>(&field->state);
  if (choice == nullptr) return label;
  for (const std::string& item : choice->Names()) {
    if (choice->LabelOf(item) == label) return item;
  }
  return label;
}

UiStatus Dialog::CopyIntoCell(std::string_view source, const Field& table, const std::string& row,
                              const std::string& column, const std::string& new_name) {
  const auto found = index_.find(std::string(source));
  if (found == index_.end()) return UiStatus::kNoField;
  if (new_name.empty() || Lookup(new_name) != nullptr) return UiStatus::kBadArgument;
  auto& cells = std::get<TableModel>(components_[index_.at(table.name)].state);
  const UiStatus status = cells.PutComponent(row, column, new_name);
  if (status != UiStatus::kOk) return status;
  auto copy = std::make_unique<Field>(resource_.components[found->second]);
  copy->name = new_name;
  copy->parent = table.name;
  if (auto* const text = std::get_if<TextState>(&copy->state)) {
    *text = std::get<TextState>(components_[found->second].state);
  }
  cell_fields_[new_name] = {table.name, row, column, std::move(copy)};
  return UiStatus::kOk;
}

std::string Dialog::CellText(const TableModel& table, const std::string& row,
                             const std::string& column) const {
  std::string component;
  if (table.GetComponent(row, column, &component) == UiStatus::kOk) {
    const Field* const field = Lookup(component);
    const auto* const text = field == nullptr ? nullptr : std::get_if<TextState>(&field->state);
    if (text != nullptr) return text->Value();
  }
  std::string label;
  table.GetLabel(row, column, &label);
  return label;
}

bool Dialog::IsShown(const Field& component) const {
  const Field* at = &component;
  while (at && at->visible) at = at->parent.empty() ? nullptr : Lookup(at->parent);
  return at == nullptr;
}

bool Dialog::IsUsable(const Field& component) const {
  const Field* at = &component;
  while (at && at->enabled) at = at->parent.empty() ? nullptr : Lookup(at->parent);
  return at == nullptr;
}

UserOutcome Dialog::Reach(std::string_view name) const {
  const Field* component = Lookup(name);
  if (!component) {
    return {
        UiEvent::kNone, "dialog " + resource_.name + " has no component " + std::string(name), {}};
  }
  if (!IsShown(*component)) return Refuse(*component, "is not visible");
  if (!IsUsable(*component)) return Refuse(*component, "is greyed out");
  return {};
}

UserOutcome Dialog::UserSetField(std::string_view component, std::string_view text) {
  UserOutcome outcome = Reach(component);
  if (!outcome.Done()) return outcome;
  Field& field = *Lookup(component);
  auto* state = std::get_if<TextState>(&field.state);
  if (!state) return Refuse(field, "is not a field to type into");
  if (!state->IsEditable()) return Refuse(field, "is read-only");
  if (state->SetValue(text) == UiStatus::kOk) return Fires(UiEvent::kInput);
  const bool broken = field.kind == FieldKind::kInputPanel && text.find('\n') != text.npos;
  return Refuse(field, broken
                           ? "takes one line only"
                           : "takes " + std::to_string(state->MaxLength()) + " characters at most");
}

UserOutcome Dialog::UserSelect(std::string_view component, const std::vector<std::string>& names) {
  UserOutcome outcome = Reach(component);
  if (!outcome.Done()) return outcome;
  Field& target = *Lookup(component);
  if (auto* choice = std::get_if<ChoiceState>(&target.state)) {
    const UiStatus status = choice->Select(choice->NamesOf(names));
    if (status == UiStatus::kOk) return Fires(UiEvent::kSelect);
    return Refuse(target, SelectionRefusal(status, names, choice->Names(), "item"));
  }
  if (auto* table = std::get_if<TableModel>(&target.state)) {
    const UiStatus status = table->SelectRows(names);
    if (status == UiStatus::kOk) return Fires(UiEvent::kSelect);
    return Refuse(target, SelectionRefusal(status, names, table->RowNames(), "row"));
  }
  return Refuse(target, "has nothing to select");
}

UserOutcome Dialog::UserToggle(std::string_view check_button) {
  UserOutcome outcome = Reach(check_button);
  if (!outcome.Done()) return outcome;
  Field& target = *Lookup(check_button);
  auto* check = std::get_if<CheckState>(&target.state);
  if (!check) return Refuse(target, "is not a check button");
  check->set = !check->set;
  return Fires(UiEvent::kActivate);
}

UserOutcome Dialog::UserPress(std::string_view push_button) {
  UserOutcome outcome = Reach(push_button);
  if (!outcome.Done()) return outcome;
  const Field& target = *Lookup(push_button);
  if (target.kind != FieldKind::kPushButton) return Refuse(target, "is not a push button");
  return Fires(UiEvent::kActivate);
}

UserOutcome Dialog::UserDoubleClick(std::string_view component, const std::string& name) {
  UserOutcome outcome = Reach(component);
  if (!outcome.Done()) return outcome;
  const Field& target = *Lookup(component);
  if (target.kind != FieldKind::kTable && target.kind != FieldKind::kList) {
    return Refuse(target, "has no rows to double-click");
  }
  outcome = UserSelect(component, {name});
  if (outcome.Done()) outcome.event = UiEvent::kActivate;
  return outcome;
}

UserOutcome Dialog::UserFocusCell(std::string_view table, const std::string& row,
                                  std::string_view column) {
  UserOutcome outcome = Reach(table);
  if (!outcome.Done()) return outcome;
  Field& target = *Lookup(table);
  auto* model = std::get_if<TableModel>(&target.state);
  if (!model) return Refuse(target, "is not a table");
  if (model->SetFocus(row, column) != UiStatus::kOk) {
    return Refuse(target, "has no cell in row " + row + ", column " + std::string(column));
  }
  model->SelectRows({row});
  std::string component;
  const bool holds_one = model->GetComponent(row, column, &component) == UiStatus::kOk;
  return {holds_one ? UiEvent::kFocusIn : UiEvent::kArm, {}, component};
}

UserOutcome Dialog::UserGoInto(std::string_view component) {
  const auto in_cell = cell_fields_.find(std::string(component));
  if (in_cell != cell_fields_.end() && IsThere(in_cell->second)) {
    const CellField& held = in_cell->second;
    return UserFocusCell(held.table, held.row, held.column);
  }
  UserOutcome outcome = Reach(component);
  const bool takes_focus = outcome.Done() && Lookup(component)->kind == FieldKind::kInputPanel;
  if (takes_focus) outcome.event = UiEvent::kFocusIn;
  return outcome;
}

}  // namespace wb
