// Asks the host, and Windows.
#include "export/files/export_folder.h"

#include <windows.h>

#include "frame/folders/known_folders.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// By its drive, or from the root of one.
bool IsAbsolute(std::wstring_view path) {
  return path.starts_with(L'\\') || path.starts_with(L'/') || path.find(L':') == 1;
}

}  // namespace

std::optional<std::wstring> AskFolder(std::wstring prompt) {
  ProPath chosen = {};
  const ProError status = ProDirectoryChoose(prompt.data(), nullptr, nullptr, nullptr, chosen);
  if (!Ok(status) && status != PRO_TK_USER_ABORT) {
    LogFailure(std::string("ProDirectoryChoose answered ") + StatusName(status));
  }
  const std::wstring folder(FixedText(chosen));
  if (Ok(status) && folder.empty()) {
    LogFailure("ProDirectoryChoose answered success and gave no folder");
  }
  return Ok(status) && !folder.empty() ? FolderFromCurrent(folder) : std::nullopt;
}

std::optional<std::wstring> FolderFromCurrent(std::wstring_view folder) {
  if (IsAbsolute(folder)) return PathIn(folder, {});
  const auto current = CurrentFolder();
  if (!current) return std::nullopt;
  return PathIn(PathIn(*current, folder), {});
}

void CreateFolder(const std::wstring& path) {
  if (::CreateDirectoryW(path.c_str(), nullptr)) return;
  const DWORD error = ::GetLastError();
  if (error == ERROR_ALREADY_EXISTS) return;
  LogFailure("the folder " + ToUtf8(path) + " cannot be made: Windows' error " +
             std::to_string(error));
}

}  // namespace qm
