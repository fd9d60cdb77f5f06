// QmOpenDir: shows the working directory.
#include "frame/commands/open_dir.h"

#include <windows.h>

#include <shellapi.h>

#include <string>

#include "frame/messages/run_log.h"
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
  const HINSTANCE answer =
      ::ShellExecuteW(nullptr, nullptr, L"explorer", folder.c_str(), nullptr, SW_SHOW);
  constexpr INT_PTR kLastFailure = 32;
  if (reinterpret_cast<INT_PTR>(answer) <= kLastFailure)
    LogOutcome("Windows did not start explorer");
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
