// Folders as the host's model records hold them.
#include "frame/text/directory_rules.h"

#include <algorithm>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

bool IsSeparator(wchar_t c) {
  return c == L'\\' || c == L'/';
}

bool HasDriveOrServer(std::wstring_view path) {
  if (path.size() < 2) return false;
  return path[1] == L':' || (IsSeparator(path[0]) && IsSeparator(path[1]));
}

bool HasDrive(std::wstring_view path) {
  return path.size() > 1 && path[1] == L':';
}

std::wstring Comparable(std::wstring_view path, bool with_drive) {
  if (!with_drive && HasDrive(path)) path.remove_prefix(2);
  while (!path.empty() && IsSeparator(path.back())) path.remove_suffix(1);
  std::wstring folder = LowerCased(path);
  std::ranges::replace(folder, L'/', L'\\');
  return folder;
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

bool IsSameFolder(std::wstring_view a, std::wstring_view b) {
  const bool with_drive = HasDrive(a) == HasDrive(b);
  return Comparable(a, with_drive) == Comparable(b, with_drive);
}

}  // namespace qm
