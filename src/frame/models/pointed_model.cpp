// Looks at the current model and the selection.
#include "frame/models/pointed_model.h"

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/models/preselection.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// Null when the user picks nothing.
ProMdl PickedModel(const char* prompt) {
  DisplayNote(prompt);
  ProSelection* selections = nullptr;
  int count = 0;
  const ProError status =
      ProSelect("prt_or_asm", 1, nullptr, nullptr, nullptr, nullptr, &selections, &count);
  if (!Ok(status) || count < 1 || selections == nullptr) return nullptr;
  return ComponentModelOf(selections[0]);
}

ProMdl SelectedModel(const char* prompt) {
  const auto selected = ReadPreselection();
  if (!selected) return PickedModel(prompt);
  if (selected->size() != 1) {
    ShowMessage(L"\t当前模式只能选择1个元件\t");
    return nullptr;
  }
  return ComponentModelOf((*selected)[0]);
}

}  // namespace

ProMdl PointedModel(const char* prompt) {
  ProMdl current = nullptr;
  if (!Ok(ProMdlCurrentGet(&current)) || current == nullptr) return nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  if (!Ok(ProMdlTypeGet(current, &type))) return nullptr;
  return type == PRO_MDL_PART ? current : SelectedModel(prompt);
}

}  // namespace qm
