// Runs the actions that the plug-in bound to its dialogs.
#include "workbench/host/live_dialog.h"

#include "workbench/base/text.h"
#include "workbench/host/host.h"
#include "workbench/host/host_types.h"

namespace wb {

bool LiveDialog::Fire(const std::string& component, const std::string& event) {
  const auto found = actions.find({component, event});
  if (found == actions.end() || found->second.function == nullptr) return false;
  // The plug-in may keep neither text: both live for this call only.
  std::string dialog_text = ToAnsi(name);
  std::string component_text = ToAnsi(component);
  const auto action = reinterpret_cast<ProUIAction>(found->second.function);
  try {
    action(dialog_text.data(), component_text.data(), found->second.data);
  } catch (...) {
    TheHost().ReportBreach(name, "exception across the boundary from the action of " +
                                     (component.empty() ? "the dialog" : component));
  }
  TheHost().ControlIsBack();
  return true;
}

void LiveDialog::Unbind(const std::string& component) {
  std::erase_if(actions, [&](const auto& bound) { return bound.first.first == component; });
}

LiveDialog* Dialogs::Find(const std::string& name) {
  const auto found = open.find(name);
  return found == open.end() ? nullptr : found->second.get();
}

}  // namespace wb
