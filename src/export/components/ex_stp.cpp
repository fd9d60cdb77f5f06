// QmExStp: the user picks a folder, and each component's model gets a STEP file in it.
#include "export/components/ex_stp.h"

#include "export/components/component_export.h"
#include "export/files/export_folder.h"
#include "frame/messages/run_log.h"
#include "toolkit/numbers.h"

namespace qm {

ProError QmExStp() {
  const auto components = OpenComponents();
  if (!components) return PRO_TK_E_NOT_FOUND;
  const auto folder = AskFolder(L"请选择STP文件导出位置");
  if (!folder) {
    LogOutcome("nothing exported, no folder");
    return PRO_TK_USER_ABORT;
  }
  return ExportAllComponents(*components, *folder,
                             {L".stp", L"\tSTEP导出已完成\t", OutputFileWriter(PRO_STEP_FILE)});
}

}  // namespace qm
