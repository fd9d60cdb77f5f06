// QmOpenDir: shows the working directory.
#include "frame/commands/open_dir.h"

#include <windows.h>

#include <shellapi.h>

#include <string>

#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

ProError QmOpenDir() {
  ProPath buffer = {};
  const ProError status = ProDirectoryCurrentGet(buffer);
  if (!Ok(status)) return status;
  const std::wstring folder(FixedText(buffer));
  if (folder.empty()) return PRO_TK_INVALID_DIR;
  ::ShellExecuteW(nullptr, nullptr, L"explorer", folder.c_str(), nullptr, SW_SHOW);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
