// One created dialog: the live state of its components, as the plug-in's calls and the user's hands
// change it. Which actions are bound to it and when they run is the caller's business.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "workbench/dialog/captions.h"
#include "workbench/dialog/dialog_resource.h"
#include "workbench/dialog/field_state.h"
#include "workbench/dialog/ui_status.h"

namespace wb {

// The action of a component that a user's deed is to fire.
enum class UiEvent { kNone, kActivate, kSelect, kInput, kArm, kFocusIn };

// What came of something the user tried: the action to fire, or why it cannot be done. A refused
// deed changes nothing.
struct UserOutcome {
  bool Done() const { return refusal.empty(); }

  UiEvent event = UiEvent::kNone;
  std::string refusal;  // a sentence that names the component
  std::string target;   // whose action it is; empty: that of the component it was done to
};

class Dialog {
 public:
  explicit Dialog(DialogResource resource);

  const DialogResource& Resource() const { return resource_; }
  const std::string& Title() const { return title_; }
  const std::vector<Field>& Fields() const { return components_; }

  // --- The plug-in's side. The out-pointers are set only on kOk and stay valid as long as the
  // dialog; a component of another kind is kWrongKind.
  UiStatus Find(FieldKind kind, std::string_view name, Field** component);
  // The typed state of a component: ChoiceState, TextState, CheckState or TableModel.
  template <class State>
  UiStatus Find(FieldKind kind, std::string_view name, State** state) {
    Field* component = nullptr;
    const UiStatus status = Find(kind, name, &component);
    if (status != UiStatus::kOk) return status;
    *state = std::get_if<State>(&component->state);
    return *state ? UiStatus::kOk : UiStatus::kWrongKind;
  }
  UiStatus SetEnabled(FieldKind kind, std::string_view name, bool enabled);
  UiStatus SetVisible(FieldKind kind, std::string_view name, bool visible);
  // Labels of buttons, label texts and group captions.
  UiStatus SetLabel(FieldKind kind, std::string_view name, std::string_view label);
  // The name of the item that an option menu shows; "" while it has no items.
  // The selected item of an option menu by its name.
  UiStatus GetOptionValue(std::string_view name, std::string* item) const;
  // The label of an item, and the item with a label; the text itself where there is none.
  std::string OptionLabel(std::string_view name, const std::string& item) const;
  std::string OptionNamed(std::string_view name, const std::string& label) const;
  UiStatus SetOptionValue(std::string_view name, const std::string& item);

  // A copy of a component of this dialog, in a cell of a table, under a name of its own. A name
  // that a component has, and a cell that holds one, are kBadArgument.
  UiStatus CopyIntoCell(std::string_view source, const Field& table, const std::string& row,
                        const std::string& column, const std::string& new_name);

  // --- The user's side. A component that is missing, hidden or greyed, itself or through the group
  // it lies in, cannot be used.
  // Types `text` into an input panel or text area in place of what is there.
  UserOutcome UserSetField(std::string_view component, std::string_view text);
  // Chooses items of a radio group, option menu or list, or rows of a table, by name.
  UserOutcome UserSelect(std::string_view component, const std::vector<std::string>& names);
  UserOutcome UserToggle(std::string_view check_button);
  UserOutcome UserPress(std::string_view push_button);
  // Double-clicks a list item or table row, which also selects it.
  UserOutcome UserDoubleClick(std::string_view component, const std::string& name);
  // Clicks a table cell, or the component in it: it takes the focus and its row becomes the
  // selected one.
  UserOutcome UserFocusCell(std::string_view table, const std::string& row,
                            std::string_view column);

  // The user goes into a component; when it stands in a cell, that one takes the focus.
  UserOutcome UserGoInto(std::string_view component);

  // True when the component and every group around it is visible (or enabled).
  bool IsShown(const Field& component) const;
  bool IsUsable(const Field& component) const;

  // --- What a user reads.
  // A cell's label, or the text of the component in it.
  std::string CellText(const TableModel& table, const std::string& row,
                       const std::string& column) const;
  // The field's own label, or that of the label beside or above it; "" when it has neither.
  std::string LabelOf(const Field& field) const;
  // The same behind the label of the group around it, which tells fields of one label apart:
  // "参数对象/模型类型".
  std::string FullLabelOf(const Field& field) const;
  // The field of this name, or else all that have this label. A colon at a label's end is no part
  // of it.
  std::vector<const Field*> FieldsCalled(std::string_view text) const;
  // Whether it is a label that belongs to another field.
  bool IsCaption(const Field& field) const;

 private:
  struct CellField {
    std::string table, row, column;
    std::unique_ptr<Field> field;
  };
  // One whose row has gone is no longer there.
  bool IsThere(const CellField& held) const;
  const Field* Lookup(std::string_view name) const;
  Field* Lookup(std::string_view name);
  // Whether a user can reach `name` at all; the refusal says why not.
  UserOutcome Reach(std::string_view name) const;

  DialogResource resource_;
  std::string title_;
  std::vector<Field> components_;
  std::unordered_map<std::string, std::size_t> index_;
  std::unordered_map<std::string, CellField> cell_fields_;
  Captions captions_;
};

}  // namespace wb
