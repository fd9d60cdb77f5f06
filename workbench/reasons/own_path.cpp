// Asks the layer that runs Windows programs on other systems for its paths.
#include "workbench/reasons/own_path.h"

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"

namespace wb {
namespace {

using UnixNameFunction = char* (*)(const wchar_t*);

// Null on Windows itself.
UnixNameFunction UnixName() {
  const HMODULE kernel = ::GetModuleHandleW(L"kernel32.dll");
  const FARPROC found = ::GetProcAddress(kernel, "wine_get_unix_file_name");
  return reinterpret_cast<UnixNameFunction>(reinterpret_cast<void*>(found));
}

// Drives are links in one folder: z: to the root, c: to a folder beside it.
std::string WithoutDriveLink(const std::string& path) {
  const std::string links = "/dosdevices/";
  const size_t at = path.find(links);
  const size_t drive = at + links.size();
  if (at == std::string::npos || path.size() < drive + 2 || path[drive + 1] != ':') return path;
  const std::string rest = path.substr(drive + 2);
  if (path[drive] == 'z') return rest.empty() ? "/" : rest;
  return path[drive] == 'c' ? path.substr(0, at) + "/drive_c" + rest : path;
}

std::string AskedPath(UnixNameFunction unix_name, const std::filesystem::path& path) {
  char* const name = unix_name(path.c_str());
  if (name == nullptr) return {};
  const std::string text = name;
  ::HeapFree(::GetProcessHeap(), 0, name);
  return WithoutDriveLink(text);
}

}  // namespace

std::string OwnPath(const std::filesystem::path& path) {
  const UnixNameFunction unix_name = path.is_absolute() ? UnixName() : nullptr;
  if (unix_name == nullptr) return PathToUtf8(path);
  const std::string own = AskedPath(unix_name, path);
  // What is not there has no name of its own, but perhaps the folder above it.
  if (!own.empty() || path == path.parent_path()) return own.empty() ? PathToUtf8(path) : own;
  return OwnPath(path.parent_path()) + "/" + PathToUtf8(path.filename());
}

std::string WithOwnPath(const std::string& text) {
  const size_t colon = text.find(":\\");
  if (colon == std::string::npos || colon == 0) return text;
  const bool starts_word = colon == 1 || text[colon - 2] == ' ' || text[colon - 2] == '"';
  if (!starts_word) return text;
  const size_t end = std::min(text.find('"', colon), text.size());
  const std::string path = text.substr(colon - 1, end - colon + 1);
  return text.substr(0, colon - 1) + OwnPath(PathFromUtf8(path)) + text.substr(end);
}

}  // namespace wb
