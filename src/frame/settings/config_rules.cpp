// Text rules of the settings files.
#include "frame/settings/config_rules.h"

#include "frame/text/letter_case.h"

namespace qm {
namespace {

constexpr std::wstring_view kConfigFolder = L"QMconfig\\";
// No folder can have this name, so the path below it never exists.
constexpr std::wstring_view kNowhere = L"C:\\?\\";

std::wstring Joined(std::wstring_view folder, std::wstring_view rest, std::wstring_view file) {
  std::wstring path(folder);
  path += rest;
  path += file;
  return path;
}

}  // namespace

std::wstring ConfigPathBeside(std::wstring_view module_path, std::wstring_view module_name,
                              std::wstring_view file) {
  return PathBeside(module_path, module_name, Joined(kConfigFolder, file, {}));
}

std::wstring PathBeside(std::wstring_view module_path, std::wstring_view module_name,
                        std::wstring_view name) {
  const std::size_t separator = module_path.find_last_of(L"\\/");
  const std::size_t name_start = separator == std::wstring_view::npos ? 0 : separator + 1;
  const std::wstring_view folder = module_path.substr(0, name_start);
  const bool is_ours =
      !folder.empty() && EqualIgnoringCase(module_path.substr(name_start), module_name);
  return is_ours ? Joined(folder, name, {}) : Joined(kNowhere, name, {});
}

bool LeadsNowhere(std::wstring_view path) {
  return path.starts_with(kNowhere);
}

std::wstring ConfigPathIn(std::wstring_view folder, std::wstring_view file) {
  while (!folder.empty() && (folder.back() == L'\\' || folder.back() == L'/')) {
    folder.remove_suffix(1);
  }
  return Joined(folder, Joined(L"\\", kConfigFolder, {}), file);
}

}  // namespace qm
