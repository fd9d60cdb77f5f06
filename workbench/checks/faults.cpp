// Decides which crossing a fault strikes.
#include "workbench/checks/faults.h"

namespace wb {

const FaultPlan* Faults::Strike(const char* function) {
  if (!plan_ || plan_->nth == 0) return nullptr;
  if (!plan_->function.empty() && plan_->function != function) return nullptr;
  ++seen_;
  if (seen_ != plan_->nth && !(plan_->from_then_on && seen_ > plan_->nth)) return nullptr;
  ++struck_;
  return &*plan_;
}

const FaultPlan* Faults::StrikeWindows(const char* function) {
  if (plan_ && plan_->function.empty() && !plan_->windows_too) return nullptr;
  return Strike(function);
}

}  // namespace wb
