// QmMdlNameCopy: copies a model's name to the clipboard.
#include "frame/commands/mdl_name_copy.h"

#include <string>

#include "frame/commands/clipboard.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/preselection.h"
#include "frame/text/fixed_text.h"
#include "toolkit/model.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// Null when the user picks nothing.
ProMdl PickedModel() {
  DisplayNote("Please select a part or an assembly for coping name");
  ProSelection* selections = nullptr;
  int count = 0;
  const ProError status =
      ProSelect("prt_or_asm", 1, nullptr, nullptr, nullptr, nullptr, &selections, &count);
  if (!Ok(status) || count < 1 || selections == nullptr) return nullptr;
  return ComponentModelOf(selections[0]);
}

// Null, after a message when the preselection is to blame, when there is no model to name.
ProMdl SelectedModel() {
  const auto selected = ReadPreselection();
  if (!selected) return PickedModel();
  if (selected->size() != 1) {
    ShowMessage(L"\t当前模式只能选择1个元件\t");
    return nullptr;
  }
  return ComponentModelOf((*selected)[0]);
}

ProMdl ModelToName() {
  ProMdl current = nullptr;
  if (!Ok(ProMdlCurrentGet(&current)) || current == nullptr) return nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  if (!Ok(ProMdlTypeGet(current, &type))) return nullptr;
  return type == PRO_MDL_PART ? current : SelectedModel();
}

}  // namespace

ProError QmMdlNameCopy() {
  const ProMdl model = ModelToName();
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  ProName buffer = {};
  const ProError status = ProMdlNameGet(model, buffer);
  if (!Ok(status)) return status;
  const std::wstring name(FixedText(buffer));
  // An empty name would only empty the clipboard.
  if (name.empty()) return PRO_TK_E_NOT_FOUND;
  if (CopyToClipboard(name)) {
    DisplayNote("The model name has been copied");
  } else {
    LogOutcome("the clipboard has not taken the name");
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
