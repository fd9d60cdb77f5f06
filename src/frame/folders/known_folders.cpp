// Asks the host and Windows for folders.
#include "frame/folders/known_folders.h"

#include <windows.h>

#include <shlobj.h>

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

std::optional<std::wstring> CurrentFolder() {
  ProPath folder = {};
  const ProError status = ProDirectoryCurrentGet(folder);
  if (Ok(status) && !FixedText(folder).empty()) return PathIn(FixedText(folder), {});
  LogFailure(nullptr, "ProDirectoryCurrentGet", status);
  return std::nullopt;
}

std::optional<std::wstring> DesktopFolder() {
  wchar_t folder[MAX_PATH] = {};
  if (!::SHGetSpecialFolderPathW(nullptr, folder, CSIDL_DESKTOPDIRECTORY, FALSE)) {
    LogFailure("the desktop's folder cannot be had of Windows");
    return std::nullopt;
  }
  return folder;
}

std::wstring PathIn(std::wstring_view folder, std::wstring_view name) {
  std::wstring path(folder);
  if (!path.ends_with(L'\\') && !path.ends_with(L'/')) path += L'\\';
  return path.append(name);
}

}  // namespace qm
