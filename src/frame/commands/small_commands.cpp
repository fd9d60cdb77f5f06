// Working directory, the drawing of a model, and a probe of the session.
#include "frame/commands/small_commands.h"

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <string_view>

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/models/preselection.h"
#include "frame/text/directory_rules.h"
#include "frame/text/text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// The one preselected assembly or part; null when something else is preselected.
ProMdl PreselectedModel() {
  SelectionArray selected;
  if (!Ok(ProSelbufferSelectionsGet(selected.put())) || selected.size() != 1) return nullptr;
  auto item = ItemOf(selected[0]);
  if (!item || (item->type != PRO_ASSEMBLY && item->type != PRO_PART)) return nullptr;
  ProMdl model = nullptr;
  return Ok(ProModelitemMdlGet(&*item, &model)) ? model : nullptr;
}

ProError ShowInWindow(ProMdl drawing, ProName name) {
  int window = -1;
  ProError status = ProObjectwindowCreate(name, PRO_DRAWING, &window);
  if (!Ok(status)) return status;
  if (window < 0) return PRO_TK_GENERAL_ERROR;
  status = ProMdlDisplay(drawing);
  if (!Ok(status)) return status;
  return ProWindowActivate(window);
}

}  // namespace

ProError QmOpenDir() {
  ProPath folder = {};
  const ProError status = ProDirectoryCurrentGet(folder);
  if (!Ok(status)) return status;
  if (folder[0] == L'\0') return PRO_TK_INVALID_DIR;
  folder[PRO_PATH_SIZE - 1] = L'\0';
  ::ShellExecuteW(nullptr, nullptr, L"explorer", folder, nullptr, SW_SHOW);
  return PRO_TK_NO_ERROR;
}

ProError QmSetDirectory() {
  ProMdl model = nullptr;
  ProError status = ProMdlCurrentGet(&model);
  if (!Ok(status)) return status;
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  ProMdldata data = {};
  status = ProMdlDataGet(model, &data);
  if (!Ok(status)) return status;
  const std::wstring folder = ModelFolder(FixedText(data.device), FixedText(data.path));
  if (folder.empty() || folder.size() >= PRO_PATH_SIZE) return PRO_TK_INVALID_DIR;
  ProPath path = {};
  folder.copy(path, PRO_PATH_SIZE - 1);
  status = ProDirectoryChange(path);
  if (Ok(status)) DisplayNote("Directory has changed to:%0w", path);
  return status;
}

ProError QmOpenDrw() {
  const ProMdl model = PreselectedModel();
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  ProName name = {};
  ProError status = ProMdlNameGet(model, name);
  if (!Ok(status)) return status;
  name[PRO_NAME_SIZE - 1] = L'\0';
  ProMdl drawing = nullptr;
  status = ProMdlRetrieve(name, PRO_MDL_DRAWING, &drawing);
  if (!Ok(status) || drawing == nullptr) {
    ShowMessage(L"\t同名工程图打开失败，请确认该模型工程图在当前工作目录是否存在。\t");
    return PRO_TK_E_NOT_FOUND;
  }
  return ShowInWindow(drawing, name);
}

ProError ForTest() {
  ProMdl model = nullptr;
  return ProMdlCurrentGet(&model);
}

}  // namespace qm
