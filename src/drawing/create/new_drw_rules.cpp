// Sections of the drawing templates.
#include "drawing/create/new_drw_rules.h"

#include <algorithm>

namespace qm {

std::wstring TemplateSection(std::string_view size, std::string_view kind) {
  constexpr std::string_view kSizes[] = {"A0", "A1", "A2", "A3", "A4", "A4H"};
  const wchar_t* const end = kind == "asm" ? L"Asmpath" : kind == "prt" ? L"Prtpath" : nullptr;
  if (end == nullptr || std::ranges::find(kSizes, size) == std::end(kSizes)) return {};
  return std::wstring(size.begin(), size.end()) + end;
}

}  // namespace qm
