// Asks for files through the host.
#include "frame/dialogs/file_choice.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/owners.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

std::wstring FormatFolder() {
  ProName option = L"pro_format_dir";
  HostArray<ProPath> folders;
  if (!Ok(ProConfigoptArrayGet(option, folders.put())) || folders.size() < 1) return {};
  return std::wstring(FixedText(folders[0]));
}

std::optional<std::wstring> PickDrawingFile(std::wstring title, std::wstring filter,
                                            std::wstring folder) {
  ProPath chosen = {};
  const ProError status = ProFileOpen(title.data(), filter.data(), nullptr, nullptr,
                                      folder.empty() ? nullptr : folder.data(), nullptr, chosen);
  if (!Ok(status) && status != PRO_TK_USER_ABORT) {
    LogFailure(std::string("ProFileOpen answered ") + StatusName(status));
  }
  const std::wstring path(FixedText(chosen));
  if (Ok(status) && path.empty()) LogFailure("ProFileOpen answered success and gave no file");
  return Ok(status) && !path.empty() ? std::optional(path) : std::nullopt;
}

std::optional<std::wstring> PickFileToWrite(std::wstring title, std::wstring filter,
                                            std::wstring name) {
  ProPath chosen = {};
  const ProError status =
      ProFileSave(title.data(), filter.data(), nullptr, nullptr, nullptr, name.data(), chosen);
  std::wstring path(FixedText(chosen));
  if (!Ok(status) || path.empty()) return std::nullopt;
  // Whether the host adds it is not known.
  const size_t file = path.find_last_of(L"\\/") + 1;
  if (path.find(L'.', file) == std::wstring::npos) path += filter.substr(1);
  return path;
}

}  // namespace qm
