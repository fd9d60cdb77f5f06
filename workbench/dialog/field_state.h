// Live state of the components of a dialog, one type a family of kinds. Operations that fail leave
// the state as it was and say why by UiStatus.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "workbench/dialog/dialog_resource.h"
#include "workbench/dialog/field_kinds.h"
#include "workbench/dialog/table_model.h"
#include "workbench/dialog/ui_status.h"

namespace wb {

// Named items of which some are selected: radio groups, option menus, lists.
class ChoiceState {
 public:
  explicit ChoiceState(const FieldResource& resource);

  const std::vector<std::string>& Names() const { return names_; }
  const std::vector<std::string>& Labels() const { return labels_; }
  const std::vector<std::string>& Selected() const { return selected_; }
  // Label of item `name`, its name when it has no label, "" when there is no such item.
  std::string LabelOf(std::string_view name) const;
  // Items by name or by label, as names; what is neither stays.
  std::vector<std::string> NamesOf(const std::vector<std::string>& items) const;
  bool IsSelected(std::string_view name) const;
  SelectionPolicy Policy() const { return policy_; }

  // Replaces the items. Labels stay only when their count still fits; selected names that are gone
  // are no longer selected. Empty or repeated names are kBadArgument.
  UiStatus SetNames(const std::vector<std::string>& names);
  // One label an item, else kBadArgument.
  UiStatus SetLabels(const std::vector<std::string>& labels);
  // Selects exactly `names`. An unknown name, "" too, is kNotFound; a count that the kind does not
  // allow is kBadArgument. Radio groups and option menus take exactly one.
  UiStatus Select(const std::vector<std::string>& names);
  UiStatus SetPolicy(int policy);

 private:
  std::vector<std::string> names_;
  std::vector<std::string> labels_;
  std::vector<std::string> selected_;
  SelectionPolicy policy_ = SelectionPolicy::kBrowse;
};

// Typed text: input panels and text areas.
class TextState {
 public:
  explicit TextState(const FieldResource& resource);

  const std::string& Value() const { return value_; }
  std::size_t MaxLength() const { return max_length_; }  // in wide characters; 0 is no limit
  bool IsEditable() const { return editable_; }
  void SetEditable(bool editable) { editable_ = editable; }

  // A text that is longer than the limit, or that breaks the line of a one-line panel, is
  // kBadArgument.
  UiStatus SetValue(std::string_view value);

 private:
  std::string value_;
  std::size_t max_length_ = 0;
  bool editable_ = true;
  bool many_lines_ = false;
};

struct CheckState {
  bool set = false;
};

using FieldState = std::variant<std::monostate, ChoiceState, TextState, CheckState, TableModel>;

struct Field {
  explicit Field(const FieldResource& resource);

  FieldKind kind;
  std::string name;
  std::string parent;  // the sublayout or tab it lies in
  std::string label;
  std::string help_text;
  bool enabled;
  bool visible;
  FieldState state;
};

}  // namespace wb
