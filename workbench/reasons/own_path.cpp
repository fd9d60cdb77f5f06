// Asks the layer that runs Windows programs on other systems for its paths.
#include "workbench/reasons/own_path.h"

#include <cctype>
#include <string_view>

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

// Drives are links in one folder: z: to the root, c: to a folder beside it. "" for another drive,
// which may be linked to anything, or to nothing.
std::string WithoutDriveLink(const std::string& path) {
  const std::string links = "/dosdevices/";
  const size_t at = path.find(links);
  const size_t drive = at + links.size();
  if (at == std::string::npos || path.size() < drive + 2 || path[drive + 1] != ':') return path;
  const std::string rest = path.substr(drive + 2);
  if (path[drive] == 'z') return rest.empty() ? "/" : rest;
  return path[drive] == 'c' ? path.substr(0, at) + "/drive_c" + rest : "";
}

std::string AskedPath(UnixNameFunction unix_name, const std::filesystem::path& path) {
  char* const name = unix_name(path.c_str());
  if (name == nullptr) return {};
  const std::string text = name;
  ::HeapFree(::GetProcessHeap(), 0, name);
  return WithoutDriveLink(text);
}

bool IsLetterOrDigit(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

// "Z:\\" or "Z:/", but not the end of "http:/".
bool IsStartOfPath(const std::string& text, size_t at) {
  if (at + 2 >= text.size() || text[at + 1] != ':') return false;
  if (text[at + 2] != '\\' && text[at + 2] != '/') return false;
  return std::isalpha(static_cast<unsigned char>(text[at])) != 0 &&
         (at == 0 || !IsLetterOrDigit(text[at - 1]));
}

size_t EndOfPath(const std::string& text, size_t start) {
  for (size_t at = start + 2; at < text.size(); ++at) {
    const bool is_closed = std::string_view("\";\n\r").find(text[at]) != std::string_view::npos;
    if (is_closed || text.compare(at, 2, ": ") == 0 || IsStartOfPath(text, at)) return at;
  }
  return text.size();
}

std::string Undoubled(std::string path) {
  for (size_t at = path.find("\\\\"); at != std::string::npos; at = path.find("\\\\", at + 1)) {
    path.erase(at, 1);
  }
  return path;
}

std::string OwnOrAsIs(const std::string& path) {
  const std::string own = OwnPath(PathFromUtf8(Undoubled(path)));
  return own.starts_with("/") ? own : path;
}

}  // namespace

std::string OwnPath(const std::filesystem::path& path) {
  const UnixNameFunction unix_name = path.is_absolute() ? UnixName() : nullptr;
  if (unix_name == nullptr) return PathToUtf8(path);
  const std::string own = AskedPath(unix_name, path);
  if (!own.empty() || path == path.parent_path()) return own.empty() ? PathToUtf8(path) : own;
  // What is not there has no name of its own, but perhaps the folder above it; a drive that is not
  // there has none.
  const std::string above = OwnPath(path.parent_path());
  if (!above.starts_with("/")) return PathToUtf8(path);
  return (above == "/" ? "" : above) + "/" + PathToUtf8(path.filename());
}

std::string WithOwnPath(const std::string& text) {
  std::string own;
  for (size_t at = 0; at < text.size();) {
    if (!IsStartOfPath(text, at)) {
      own += text[at++];
      continue;
    }
    const size_t end = EndOfPath(text, at);
    own += OwnOrAsIs(text.substr(at, end - at));
    at = end;
  }
  return own;
}

}  // namespace wb
