// Folders as the host's model records hold them.
#include "frame/text/directory_rules.h"

namespace qm {
namespace {

bool IsSeparator(wchar_t c) {
  return c == L'\\' || c == L'/';
}

bool HasDriveOrServer(std::wstring_view path) {
  if (path.size() < 2) return false;
  return path[1] == L':' || (IsSeparator(path[0]) && IsSeparator(path[1]));
}

}  // namespace

std::wstring ModelFolder(std::wstring_view device, std::wstring_view path) {
  if (device.empty() || HasDriveOrServer(path)) return std::wstring(path);
  std::wstring folder(device);
  const bool is_drive_letter = folder.size() == 1;
  if (is_drive_letter) folder += L':';
  if (path.empty() || !IsSeparator(path.front())) folder += L'\\';
  folder += path;
  return folder;
}

}  // namespace qm
