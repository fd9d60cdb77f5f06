// Tokens into texts.
#include "export/drawings/export_name_rules.h"

#include <algorithm>

#include "frame/text/list_rules.h"

namespace qm {
namespace {

constexpr std::wstring_view kSheetSizeToken = L"sheetsize";
constexpr std::wstring_view kNameToken = L"图纸名称";

NameToken TokenOf(std::wstring_view text) {
  if (text == kSheetSizeToken) return NameToken::kSheetSize;
  return text == kNameToken ? NameToken::kName : NameToken::kParameter;
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

}  // namespace qm
