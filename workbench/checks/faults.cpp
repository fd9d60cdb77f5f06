// Decides which crossing a fault strikes.
#include "workbench/checks/faults.h"

namespace wb {

// Counts one more that the plan could fail.
bool Faults::Reaches() {
  ++seen_;
  if (seen_ != plan_->nth && !(plan_->from_then_on && seen_ > plan_->nth)) return false;
  ++struck_;
  return true;
}

const FaultPlan* Faults::Strike(const char* function) {
  if (!plan_ || plan_->nth == 0 || plan_->kind == FaultKind::kNoMemory) return nullptr;
  if (!plan_->function.empty() && plan_->function != function) return nullptr;
  return Reaches() ? &*plan_ : nullptr;
}

bool Faults::StrikeAllocation() {
  return plan_ && plan_->nth != 0 && plan_->kind == FaultKind::kNoMemory && Reaches();
}

const FaultPlan* Faults::StrikeWindows(const char* function) {
  if (plan_ && plan_->function.empty() && !plan_->windows_too) return nullptr;
  return Strike(function);
}

}  // namespace wb
