// Settings in INI files of the folder "QMconfig" beside the plug-in. Nothing is kept in memory:
// every reader asks the file at the moment it needs a value. A missing folder, file, section or key
// reads as the empty text.
#pragma once

#include <optional>
#include <string>

namespace qm {

// File name that the plug-in must bear for its settings to be found.
inline constexpr wchar_t kPluginFileName[] = L"quillmax5.1C3.dll";

inline constexpr wchar_t kConfigFile[] = L"QmConfig.ini";
inline constexpr wchar_t kLastDirectoryFile[] = L"quillmax.ini";

// Entry names of a setting's section.
inline constexpr wchar_t kValueKey[] = L"value";
inline constexpr wchar_t kPathKey[] = L"path";
inline constexpr wchar_t kContentKey[] = L"content";

// Path of `file` in the folder "QMconfig" beside the plug-in. When the plug-in's file bears another
// name, a path that does not exist.
std::wstring ConfigPath(const wchar_t* file);

// Path of a file or folder of the installation, beside the plug-in; the same holds for it.
std::wstring InstalledPath(const wchar_t* name);

// The path of a settings file, starting from the text folder that the host registered for the
// plug-in; the plug-in's own folder when the host does not tell.
std::wstring TextFolderConfigPath(const wchar_t* file);

// At most 254 characters; longer values are cut. Nothing when the file is there and cannot be read,
// as far as that can be told: for those who write the value back.
std::optional<std::wstring> TryReadSetting(const wchar_t* section, const wchar_t* key,
                                           const std::wstring& path);
// The same; what cannot be read is empty as well.
std::wstring ReadSetting(const wchar_t* section, const wchar_t* key, const std::wstring& path);

// False when the file has not taken it.
bool WriteSetting(const wchar_t* section, const wchar_t* key, const std::wstring& value,
                  const std::wstring& path);

}  // namespace qm
