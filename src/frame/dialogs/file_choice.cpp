// Asks for files through the host.
#include "frame/dialogs/file_choice.h"

#include <utility>

#include "frame/text/fixed_text.h"
#include "toolkit/owners.h"
#include "toolkit/window.h"

namespace qm {

std::wstring OptionFolder(std::wstring_view option) {
  ProName name = {};
  HostArray<ProPath> folders;
  if (!FillFixedText(option, name)) return {};
  if (!Ok(ProConfigoptArrayGet(name, folders.put())) || folders.size() < 1) return {};
  return std::wstring(FixedText(folders[0]));
}

std::wstring FormatFolder() {
  return OptionFolder(L"pro_format_dir");
}

std::optional<std::wstring> PickFile(std::wstring title, std::wstring filter, std::wstring folder) {
  ProPath chosen = {};
  const ProError status = ProFileOpen(title.data(), filter.data(), nullptr, nullptr,
                                      folder.empty() ? nullptr : folder.data(), nullptr, chosen);
  const std::wstring path(FixedText(chosen));
  return Ok(status) && !path.empty() ? std::optional(path) : std::nullopt;
}

std::optional<std::wstring> PickDrawingFile(std::wstring title, std::wstring filter,
                                            std::wstring folder) {
  return PickFile(std::move(title), std::move(filter), std::move(folder));
}

}  // namespace qm
