// QmOpenDrw: the drawing of the preselected model, in a window of its own.
#include "frame/commands/open_drw.h"

#include "frame/messages/message_box.h"
#include "frame/models/drawing_window.h"
#include "frame/models/host_name.h"
#include "frame/models/preselection.h"
#include "frame/text/fixed_text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// The one preselected assembly or part; null when something else is preselected.
ProMdl PreselectedModel() {
  const auto selected = ReadPreselection();
  if (!selected || selected->size() != 1) return nullptr;
  auto item = ItemOf((*selected)[0]);
  if (!item || (item->type != PRO_ASSEMBLY && item->type != PRO_PART)) return nullptr;
  ProMdl model = nullptr;
  return Ok(ProModelitemMdlGet(&*item, &model)) ? model : nullptr;
}

}  // namespace

ProError QmOpenDrw() {
  const ProMdl model = PreselectedModel();
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  ProName buffer = {};
  ProError status = ProMdlNameGet(model, buffer);
  if (!Ok(status)) return status;
  auto name = HostName::From(FixedText(buffer));
  ProMdl drawing = nullptr;
  status = name ? ProMdlRetrieve(name->name, PRO_MDL_DRAWING, &drawing) : PRO_TK_LINE_TOO_LONG;
  if (!Ok(status) || drawing == nullptr) {
    ShowMessage(L"\t同名工程图打开失败，请确认该模型工程图在当前工作目录是否存在。\t");
    return PRO_TK_E_NOT_FOUND;
  }
  return DisplayDrawing(drawing, FixedText(buffer));
}

}  // namespace qm
