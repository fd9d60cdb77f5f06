// Cross-checks of a dialog resource.
#include "workbench/dialog/dialog_resource_checks.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <vector>

#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

struct PairedAttributes {
  const char* names;
  const char* per_name;  // must have as many values as `names`
};

constexpr PairedAttributes kPairs[] = {
    {"Names", "Labels"},
    {"ColumnNames", "ColumnLabels"},
    {"ColumnNames", "ColumnWidths"},
    {"RowNames", "RowLabels"},
};

class ResourceChecker {
 public:
  ResourceChecker(const DialogResource& resource, const std::string& file)
      : resource_(resource), file_(file) {}

  void Check() const {
    CheckDialog();
    for (const FieldResource& component : resource_.components) {
      CheckNames(component);
      CheckCounts(component);
      CheckSelection(component);
      CheckValue(component);
      CheckContainer(component);
      CheckReachable(component);
    }
  }

 private:
  [[noreturn]] void Fail(const FieldResource& component, const std::string& attribute,
                         const std::string& reason) const {
    throw ResourceError(file_, component.LineOf(attribute), reason);
  }

  void CheckDialog() const {
    const FieldResource& dialog = resource_.dialog;
    if (!dialog.Has("Layout")) Fail(dialog, "Layout", "the dialog has no .Layout");
    if (!dialog.Has("DefaultButton")) return;
    const std::string button = dialog.Text("DefaultButton");
    const FieldResource* found = resource_.Find(button);
    if (!found || found->kind != FieldKind::kPushButton) {
      Fail(dialog, "DefaultButton", "default button " + button + " is no push button here");
    }
  }

  void CheckNames(const FieldResource& component) const {
    for (const char* attribute : {"Names", "ColumnNames", "RowNames"}) {
      std::set<std::string> seen;
      for (const std::string& name : component.Texts(attribute)) {
        if (name.empty()) Fail(component, attribute, component.name + " has an empty name");
        if (!seen.insert(name).second) {
          Fail(component, attribute, component.name + " has the name " + name + " twice");
        }
      }
    }
    if (component.kind == FieldKind::kRadioGroup && !component.Has("Names")) {
      Fail(component, "Names", "radio group " + component.name + " has no buttons");
    }
  }

  std::size_t CountOf(const FieldResource& component, const std::string& attribute) const {
    return attribute == "ColumnWidths" ? component.Numbers(attribute).size()
                                       : component.Texts(attribute).size();
  }

  void CheckCounts(const FieldResource& component) const {
    for (const PairedAttributes& pair : kPairs) {
      if (!component.Has(pair.per_name)) continue;
      const std::size_t names = CountOf(component, pair.names);
      const std::size_t values = CountOf(component, pair.per_name);
      if (names != values) {
        Fail(component, pair.per_name,
             component.name + " has " + std::to_string(names) + " " + pair.names + " but " +
                 std::to_string(values) + " " + pair.per_name);
      }
    }
  }

  void CheckSelection(const FieldResource& component) const {
    const std::vector<std::string> names = component.Texts("Names");
    const std::vector<std::string> selected = component.Texts("SelectedNames");
    for (const std::string& name : selected) {
      if (std::find(names.begin(), names.end(), name) == names.end()) {
        Fail(component, "SelectedNames", component.name + " has no item named " + name);
      }
    }
    // Multiple and extended selection (3 and 4) alone allow more than one item.
    const bool many = component.Number("SelectionPolicy", 1) >= 3;
    if (selected.size() > 1 && !many) {
      Fail(component, "SelectedNames", component.name + " can have one selected item only");
    }
  }

  void CheckValue(const FieldResource& component) const {
    if (!component.Has("Value")) return;
    const std::string value = component.Text("Value");
    if (component.kind == FieldKind::kOptionMenu) {
      if (component.Has("SelectedNames")) {
        Fail(component, "Value", component.name + " gives both Value and SelectedNames");
      }
      const std::vector<std::string> names = component.Texts("Names");
      if (std::find(names.begin(), names.end(), value) == names.end()) {
        Fail(component, "Value", component.name + " has no item named " + value);
      }
    } else if (component.Has("MaxLen") &&
               WideLength(value) > static_cast<std::size_t>(component.Number("MaxLen", 0))) {
      Fail(component, "Value", "the value of " + component.name + " is longer than its MaxLen");
    }
  }

  void CheckContainer(const FieldResource& component) const {
    const bool tab = component.kind == FieldKind::kTab;
    if ((tab || component.kind == FieldKind::kSubLayout) && !component.Has("Layout")) {
      Fail(component, "Layout", component.name + " has no layout");
    }
    if (!tab) return;
    for (const LayoutCell& cell : component.layout.cells) {
      const FieldResource* page = resource_.Find(cell.component);
      if (!page || page->kind != FieldKind::kSubLayout) {
        Fail(component, "Layout", "the pages of tab " + component.name + " must be SubLayouts");
      }
    }
  }

  // Placed at all, and not merely within containers that lie in one another.
  void CheckReachable(const FieldResource& component) const {
    const FieldResource* at = &component;
    for (std::size_t steps = 0; steps <= resource_.components.size(); ++steps) {
      if (at->parent.empty()) {
        if (LiesIn(resource_.dialog.layout, at->name)) return;
        break;
      }
      at = resource_.Find(at->parent);
    }
    Fail(component, "", "component " + component.name + " is placed in no layout of the dialog");
  }

  static bool LiesIn(const LayoutGrid& grid, const std::string& name) {
    return std::any_of(grid.cells.begin(), grid.cells.end(), [&](const LayoutCell& cell) {
      return cell.component == name || (!cell.nested.empty() && LiesIn(cell.nested[0], name));
    });
  }

  const DialogResource& resource_;
  const std::string& file_;
};

}  // namespace

void CheckDialogResource(const DialogResource& resource, const std::string& file) {
  ResourceChecker(resource, file).Check();
}

}  // namespace wb
