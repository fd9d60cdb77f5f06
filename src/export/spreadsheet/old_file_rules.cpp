// Names for old files.
#include "export/spreadsheet/old_file_rules.h"

#include <algorithm>

namespace qm {
namespace {

constexpr wchar_t kMark[] = L".old";
// A bound both of whole paths and of names that Windows takes anywhere.
constexpr std::size_t kLongest = 255;

bool IsFirstOfPair(wchar_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

}  // namespace

std::wstring AsidePath(const std::wstring& path, int attempt) {
  const std::size_t name = path.find_last_of(L"\\/:") + 1;  // 0 where there is no folder
  const std::size_t dot = path.find_last_of(L'.');
  const std::size_t end = dot == std::wstring::npos || dot < name ? path.size() : dot;
  const std::wstring mark = attempt == 1 ? kMark : kMark + std::to_wstring(attempt);
  const std::size_t longest = std::max(path.size(), kLongest);
  const std::size_t wanted = path.size() + mark.size();
  std::size_t cut = wanted > longest ? end - std::min(wanted - longest, end - name) : end;
  // Half a character is none.
  if (cut < end && cut > name && IsFirstOfPair(path[cut - 1])) --cut;
  return path.substr(0, cut) + mark + path.substr(end);
}

}  // namespace qm
