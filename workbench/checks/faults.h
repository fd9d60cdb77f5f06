// Faults on order: fail the n-th crossing, the n-th call of one function, or the n-th allocation of
// the plug-in's own, once or from then on.
#pragma once

#include <limits>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace wb {

enum class FaultKind {
  kStatus,        // the call answers with a failing status and does nothing
  kEmptySuccess,  // the call claims success, gives nothing and does nothing
  kNoMemory,      // no call is struck but the plug-in's own allocations, which give nothing
};

struct FaultPlan {
  std::string function;      // empty: any function of the host counts
  bool windows_too = false;  // any intercepted Windows call counts as well
  long nth = 0;              // counted from 1; 0: no fault
  long second_nth = 0;       // fails as well; 0: no other
  bool from_then_on = false;
  bool spares_telling = false;  // what tells the user and the run log fails only as the first
  FaultKind kind = FaultKind::kStatus;
  int status = -1;
};

class Faults {
 public:
  // A plan for this call fails nothing, but notes what it could have failed.
  static constexpr long kNever = std::numeric_limits<long>::max();

  void Order(FaultPlan plan) { Clear(), plan_ = std::move(plan), seen_ = 0, struck_ = 0; }
  void Clear() {
    plan_.reset(), names_.clear(), first_name_.clear(), census_.clear();
    has_struck_text_ = has_struck_telling_ = false;
  }
  // The fault this call of `function` meets, if any. Calls that write the run log tell as boxes do.
  const FaultPlan* Strike(const char* function, bool is_of_run_log = false);
  // The same for an intercepted Windows call: unless the plan names it, it counts only where the
  // plan says so. It fails in the way natural to it, whatever status the plan has.
  const FaultPlan* StrikeWindows(const char* function, bool is_of_run_log = false);
  // Whether this allocation of the plug-in is to give nothing.
  bool StrikeAllocation();
  // How many calls or allocations the current plan has failed.
  long struck() const { return struck_; }
  // Whether the calls it strikes claim success.
  bool claims_success() const { return plan_ && plan_->kind == FaultKind::kEmptySuccess; }
  // Whether calls of this function are among those that the current plan has failed.
  bool HasStruck(const std::string& function) const { return names_.contains(function); }
  // Whether a call that tells the user, or writes the run log, is among them.
  bool HasStruckTelling() const { return has_struck_telling_; }
  // A call that is struck should have given a text: that there is none can be noticed.
  void NoteText() { has_struck_text_ = true; }
  bool HasStruckText() const { return has_struck_text_; }
  // The first function struck, "" for none.
  const std::string& first_struck() const { return first_name_; }
  // How many it could have failed so far.
  long seen() const { return seen_; }
  // Of which functions they were, one by one, where the plan is for kNever.
  const std::vector<std::string>& census() const { return census_; }

 private:
  bool Reaches();

  std::optional<FaultPlan> plan_;
  long seen_ = 0;
  long struck_ = 0;
  std::set<std::string> names_;  // of the functions struck
  std::string first_name_;
  std::vector<std::string> census_;
  bool has_struck_text_ = false;
  bool has_struck_telling_ = false;
};

}  // namespace wb
