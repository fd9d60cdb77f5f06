// Trust in fields that were filled from settings.
#include "frame/dialogs/filling_rules.h"

namespace qm {

bool ShowsSetting(const Filling& filling) {
  if (!filling.stored) return false;
  return filling.held ? *filling.held == *filling.stored : filling.result == FillResult::kTaken;
}

bool MaySave(const Filling& filling, std::wstring_view now) {
  if (filling.stored && filling.stored->empty()) return true;
  const bool changed_since = filling.held && *filling.held != now;
  return ShowsSetting(filling) || changed_since;
}

bool MayUse(const Filling& filling, std::wstring_view now) {
  return filling.result == FillResult::kUnknownValue || MaySave(filling, now);
}

}  // namespace qm
