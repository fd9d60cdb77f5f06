// QmSetDirectory: the current model's folder becomes the working directory.
#include "frame/commands/set_directory.h"

#include "frame/folders/model_folder.h"
#include "frame/messages/message_area.h"
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
  const auto folder = FolderOf(model);
  ProPath path = {};
  if (!folder || folder->empty() || !FillFixedText(*folder, path)) return PRO_TK_INVALID_DIR;
  status = ProDirectoryChange(path);
  if (Ok(status)) DisplayNote("Directory has changed to:%0w", path);
  return status;
}

}  // namespace qm
