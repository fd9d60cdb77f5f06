// Decides which crossing a fault strikes.
#include "workbench/checks/faults.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace wb {

namespace {

// By which the plug-in tells the user and finds the folder of its run log.
constexpr std::string_view kTelling[] = {"MessageBoxW", "ProMessageDisplay", "SHGetFolderPathW"};

bool Tells(std::string_view function) {
  return std::find(std::begin(kTelling), std::end(kTelling), function) != std::end(kTelling);
}

}  // namespace

// Counts one more that the plan could fail.
bool Faults::Reaches() {
  ++seen_;
  const bool is_meant = seen_ == plan_->nth || seen_ == plan_->second_nth;
  if (!is_meant && !(plan_->from_then_on && seen_ > plan_->nth)) return false;
  ++struck_;
  return true;
}

const FaultPlan* Faults::Strike(const char* function, bool is_of_run_log) {
  if (!plan_ || plan_->nth == 0 || plan_->kind == FaultKind::kNoMemory) return nullptr;
  if (!plan_->function.empty() && plan_->function != function) return nullptr;
  const bool tells = is_of_run_log || Tells(function);
  if (plan_->spares_telling && struck_ > 0 && tells) return nullptr;
  if (plan_->nth == kNever) census_.push_back(function);
  if (!Reaches()) return nullptr;
  has_struck_telling_ |= tells;
  if (names_.empty()) first_name_ = function;
  names_.insert(function);
  return &*plan_;
}

bool Faults::StrikeAllocation() {
  return plan_ && plan_->nth != 0 && plan_->kind == FaultKind::kNoMemory && Reaches();
}

const FaultPlan* Faults::StrikeWindows(const char* function, bool is_of_run_log) {
  if (plan_ && plan_->function.empty() && !plan_->windows_too) return nullptr;
  return Strike(function, is_of_run_log);
}

}  // namespace wb
