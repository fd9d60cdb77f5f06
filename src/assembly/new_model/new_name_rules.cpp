// How new components are numbered.
#include "assembly/new_model/new_name_rules.h"

namespace qm {
namespace {

constexpr std::wstring_view kTopEnd = L"_00";
constexpr int kFirstWithTwoDigits = 10;

}  // namespace

NewNaming NamingBelow(std::wstring_view assembly, ProMdlType type) {
  if (assembly.ends_with(kTopEnd)) assembly.remove_suffix(kTopEnd.size());
  return {std::wstring(assembly), type == PRO_MDL_ASSEMBLY, type};
}

std::wstring NumberedName(const NewNaming& naming, int number) {
  if (!naming.has_zeros) return naming.base + L"-" + std::to_wstring(number);
  return naming.base + (number < kFirstWithTwoDigits ? L"_0" : L"_") + std::to_wstring(number);
}

}  // namespace qm
