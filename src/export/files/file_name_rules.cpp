// What Windows refuses in a name.
#include "export/files/file_name_rules.h"

#include <algorithm>
#include <array>
#include <string>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

// Names that Windows keeps for devices, whatever follows their first dot.
bool IsDevice(std::wstring_view name) {
  static constexpr std::array<std::wstring_view, 4> kPlain = {L"con", L"prn", L"aux", L"nul"};
  static constexpr std::array<std::wstring_view, 2> kNumbered = {L"com", L"lpt"};
  std::wstring stem = LowerCased(name.substr(0, name.find(L'.')));
  while (!stem.empty() && stem.back() == L' ') stem.pop_back();
  if (std::ranges::find(kPlain, stem) != kPlain.end()) return true;
  return stem.size() == 4 && stem[3] >= L'1' && stem[3] <= L'9' &&
         std::ranges::find(kNumbered, stem.substr(0, 3)) != kNumbered.end();
}

}  // namespace

bool IsWindowsFileName(std::wstring_view name) {
  constexpr std::wstring_view kRefused = L"<>:\"/\\|?*";
  constexpr wchar_t kFirstPrintable = L' ';
  constexpr size_t kLongest = 255;
  if (name.empty() || name.size() > kLongest || IsDevice(name)) return false;
  if (name.back() == L'.' || name.back() == L' ') return false;
  return std::ranges::none_of(name, [&](wchar_t character) {
    return character < kFirstPrintable || kRefused.find(character) != std::wstring_view::npos;
  });
}

bool IsElsewhere(std::wstring_view name) {
  return name.find_first_of(L":/\\") != std::wstring_view::npos;
}

}  // namespace qm
