// Settings files through Windows' private-profile functions.
#include "frame/settings/config.h"

#include <windows.h>

#include "frame/settings/config_rules.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

namespace {

std::wstring ModulePath() {
  wchar_t path[MAX_PATH] = {};
  const HMODULE module = ::GetModuleHandleW(kPluginFileName);
  // Without a module Windows would answer with the host's own file.
  const DWORD length = module != nullptr ? ::GetModuleFileNameW(module, path, MAX_PATH) : 0;
  return {path, length};
}

}  // namespace

std::wstring ConfigPath(const wchar_t* file) {
  return ConfigPathBeside(ModulePath(), kPluginFileName, file);
}

std::wstring InstalledPath(const wchar_t* name) {
  return PathBeside(ModulePath(), kPluginFileName, name);
}

std::wstring TextFolderConfigPath(const wchar_t* file) {
  ProPath buffer = {};
  if (!Ok(ProToolkitApplTextPathGet(buffer))) return ConfigPath(file);
  const std::wstring_view folder = FixedText(buffer);
  return folder.empty() ? ConfigPath(file) : ConfigPathIn(folder, file);
}

std::wstring ReadSetting(const wchar_t* section, const wchar_t* key, const std::wstring& path) {
  constexpr DWORD kBufferSize = 255;
  wchar_t value[kBufferSize] = {};
  ::GetPrivateProfileStringW(section, key, L"", value, kBufferSize, path.c_str());
  return value;
}

void WriteSetting(const wchar_t* section, const wchar_t* key, const std::wstring& value,
                  const std::wstring& path) {
  ::WritePrivateProfileStringW(section, key, value.c_str(), path.c_str());
}

}  // namespace qm
