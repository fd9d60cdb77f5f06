// Names told apart without regard to case, as Windows tells files apart.
#include "export/components/component_file_rules.h"

#include <unordered_set>

#include "frame/text/letter_case.h"

namespace qm {

std::vector<std::wstring> ComponentFileNames(const std::vector<NamedComponent>& components,
                                             std::wstring_view extension) {
  std::unordered_set<std::wstring> parts;
  for (const NamedComponent& component : components) {
    if (!component.is_assembly) parts.insert(LowerCased(component.name));
  }
  std::vector<std::wstring> files;
  files.reserve(components.size());
  for (const NamedComponent& component : components) {
    const bool is_shared = component.is_assembly && parts.contains(LowerCased(component.name));
    files.push_back(component.name + (is_shared ? L"_asm" : L""));
    files.back() += extension;
  }
  return files;
}

bool IsOfClass(std::string_view class_name, bool is_assembly) {
  return class_name == "AsmAndPart" || class_name == (is_assembly ? "Asm" : "Part");
}

std::optional<int> FormatNumber(std::wstring_view text) {
  constexpr size_t kMostDigits = 9;
  if (text.empty() || text.size() > kMostDigits) return std::nullopt;
  int number = 0;
  for (const wchar_t c : text) {
    if (c < L'0' || c > L'9') return std::nullopt;
    number = number * 10 + (c - L'0');
  }
  return number;
}

}  // namespace qm
