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

}  // namespace qm
