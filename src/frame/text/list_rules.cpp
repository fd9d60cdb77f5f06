// Splitting of typed lists.
#include "frame/text/list_rules.h"

#include <algorithm>

namespace qm {
namespace {

// The comma and its full-width form.
constexpr std::wstring_view kCommas = L",\uFF0C";

}  // namespace

std::wstring WithoutBlanks(std::wstring_view text) {
  std::wstring result(text);
  std::erase(result, L' ');
  return result;
}

std::vector<std::wstring> SplitAtCommas(std::wstring_view list) {
  std::vector<std::wstring> pieces;
  for (size_t begin = 0; begin < list.size();) {
    const size_t end = std::min(list.find_first_of(kCommas, begin), list.size());
    if (end > begin) pieces.emplace_back(list.substr(begin, end - begin));
    begin = end + 1;
  }
  return pieces;
}

std::vector<std::wstring> SplitNames(std::wstring_view list) {
  return SplitAtCommas(WithoutBlanks(list));
}

}  // namespace qm
