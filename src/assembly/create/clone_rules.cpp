// The three modes of naming.
#include "assembly/create/clone_rules.h"

#include <string>

#include "frame/text/letter_case.h"
#include "frame/text/list_rules.h"

namespace qm {
namespace {

struct ModeRow {
  const wchar_t* word;
  CloneMode mode;
};
constexpr ModeRow kModes[] = {
    {L"byComp", CloneMode::kByComponent},
    {L"byAsm", CloneMode::kByAssembly},
    {L"byUser", CloneMode::kByUser},
};

}  // namespace

std::optional<CloneMode> CloneModeOf(std::wstring_view setting) {
  const std::wstring word = WithoutBlanks(setting);
  for (const ModeRow& row : kModes) {
    if (EqualIgnoringCase(word, row.word)) return row.mode;
  }
  return std::nullopt;
}

NewNaming NamingAfterComponent(std::wstring_view source) {
  return {std::wstring(source), false, PRO_MDL_PART};
}

}  // namespace qm
