// QmMdlNameCopy: copies a model's name to the clipboard.
#include "frame/commands/mdl_name_copy.h"

#include <string>

#include "frame/commands/clipboard.h"
#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/models/pointed_model.h"
#include "frame/text/fixed_text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {

ProError QmMdlNameCopy() {
  const ProMdl model = PointedModel("Please select a part or an assembly for coping name");
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
