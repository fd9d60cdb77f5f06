// QmSetDirectory: the current model's folder becomes the working directory.
#include "frame/commands/set_directory.h"

#include <string>

#include "frame/messages/message_area.h"
#include "frame/text/directory_rules.h"
#include "frame/text/fixed_text.h"
#include "toolkit/model.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

ProError QmSetDirectory() {
  ProMdl model = nullptr;
  ProError status = ProMdlCurrentGet(&model);
  if (!Ok(status)) return status;
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  ProMdldata data = {};
  status = ProMdlDataGet(model, &data);
  if (!Ok(status)) return status;
  const std::wstring folder = ModelFolder(FixedText(data.device), FixedText(data.path));
  ProPath path = {};
  if (folder.empty() || !FillFixedText(folder, path)) return PRO_TK_INVALID_DIR;
  status = ProDirectoryChange(path);
  if (Ok(status)) DisplayNote("Directory has changed to:%0w", path);
  return status;
}

}  // namespace qm
