// Tokens into texts, and the limits of Windows.
#include "export/drawings/export_name_rules.h"

#include <algorithm>
#include <array>

#include "frame/text/letter_case.h"
#include "frame/text/list_rules.h"

namespace qm {
namespace {

constexpr std::wstring_view kSheetSizeToken = L"sheetsize";
constexpr std::wstring_view kNameToken = L"图纸名称";

NameToken TokenOf(std::wstring_view text) {
  if (text == kSheetSizeToken) return NameToken::kSheetSize;
  return text == kNameToken ? NameToken::kName : NameToken::kParameter;
}

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

bool NamingRule::Uses(NameToken token) const {
  return std::ranges::find(tokens, token) != tokens.end();
}

NamingRule NamingRuleOf(std::wstring_view names, std::wstring_view separator) {
  NamingRule rule;
  for (std::wstring& name : SplitNames(names)) {
    rule.tokens.push_back(TokenOf(name));
    if (rule.tokens.back() == NameToken::kParameter) rule.parameters.push_back(std::move(name));
  }
  rule.separator = separator.empty() ? L" " : separator;
  if (rule.separator == L"NULL") rule.separator.clear();
  return rule;
}

std::wstring FileName(const NamingRule& rule, const NameValues& values) {
  std::wstring name;
  auto parameter = values.parameters.begin();
  const auto next = [&](NameToken token) -> const std::optional<std::wstring>& {
    if (token == NameToken::kSheetSize) return values.sheet_size;
    return token == NameToken::kName ? values.name : *parameter++;
  };
  for (const NameToken token : rule.tokens) {
    if (const auto& text = next(token)) name += *text + rule.separator;
  }
  if (!name.empty()) name.resize(name.size() - rule.separator.size());
  return name;
}

std::wstring NumberedName(const std::wstring& name, int sheet) {
  return name + L"-" + std::to_wstring(sheet);
}

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

}  // namespace qm
