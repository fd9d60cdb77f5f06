// Sweeps of faults.
#include "workbench/sweep/fault_sweep.h"

#include <algorithm>
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/checks/fault_sample.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_watch.h"

namespace wb {
namespace {

// A command that makes more calls than this on a small model goes round in circles.
constexpr long kMostCalls = 100000;
// Pairs begin at so many of the first calls and so many of the others. The second call lies close
// behind, where the first failure is being dealt with.
constexpr long kDensePairs = 10;
constexpr long kSparsePairs = 10;
constexpr long kPairGaps[] = {1, 2, 4};
// A sample takes, beside calls of every function, so many of the first and so many of the others.
constexpr long kDenseSample = 10;
constexpr long kSparseSample = 10;

// After a failure of these a command works all the same, with other values than without it.
constexpr const char* kChangeWhatIsMeant[] = {
    // A colour table that cannot be read is as black as one that is missing.
    "GetModuleHandleW",
    "GetModuleFileNameW",
    "GetPrivateProfileStringW",
};

}  // namespace

struct Sweep::Kind {
  const char* name;  // as the statement that repeats one run says it
  FaultKind kind;
  int status;
  bool from_then_on;
  bool spares_telling = false;
};

Sweep::Sweep(ScriptRun& run, const Statement& statement)
    : run_(run),
      statement_(statement),
      command_(run, statement),
      folders_(command_.Folders()),
      start_(run.host, folders_),
      before_(StateNow(run.host, folders_)) {}

// Nobody can tell of a failure while boxes and the run log fail as well, so that one of the lasting
// kinds leaves them out.
void Sweep::Run() {
  static constexpr Kind kKinds[] = {
      {"status general_error", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, false},
      {"status general_error from_then_on", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, true},
      {"status bad_inputs", FaultKind::kStatus, PRO_TK_BAD_INPUTS, false},
      {"status bad_inputs from_then_on telling_spared", FaultKind::kStatus, PRO_TK_BAD_INPUTS, true,
       true},
      {"empty", FaultKind::kEmptySuccess, 0, false},
      {"empty from_then_on", FaultKind::kEmptySuccess, 0, true},
  };
  RunClean();
  if (run_.options.sampled_faults) {
    RunSample(kKinds);
  } else {
    for (const Kind& kind : kKinds) RunKind(kind);
  }
  RunPairs();
  std::printf("%s: sweep of %s: %zu calls, %ld faults, %d bad runs\n", statement_.Place().c_str(),
              statement_.Text("COMMAND").c_str(), census_.size(), faults_, bad_runs_);
  if (bad_runs_ == 0) run_.Pass();
}

void Sweep::RunClean() {
  const RunMark mark = MarkRun(run_);
  FaultPlan census;
  census.windows_too = true;
  census.nth = Faults::kNever;
  const CommandRun result = command_.RunOnce(census);
  census_ = run_.host.faults.census();
  run_.host.faults.Clear();
  std::vector<std::string> complaints = command_.ComplaintsOfClean(result);
  clean_ = OutcomeOf(run_, result, mark, folders_);
  PutBack(clean_, &complaints);
  Tell("without any fault", "", complaints);
}

bool Sweep::RunAt(long nth, const Kind& kind) {
  FaultPlan plan;
  plan.nth = nth;
  plan.windows_too = true;
  plan.from_then_on = kind.from_then_on;
  plan.spares_telling = kind.spares_telling;
  plan.kind = kind.kind;
  plan.status = kind.status;
  return RunOne(plan, "fault crossing " + std::to_string(nth) + " " + kind.name);
}

void Sweep::RunKind(const Kind& kind) {
  for (long nth = 1; nth < kMostCalls; ++nth) {
    if (!RunAt(nth, kind)) return;
  }
  run_.Fail(statement_, "the command makes more than " + std::to_string(kMostCalls) + " calls");
}

void Sweep::RunSample(std::span<const Kind> kinds) {
  size_t turn = 0;
  for (const long nth : SampledCalls(census_, kDenseSample, kSparseSample)) {
    RunAt(nth, kinds.front());
    RunAt(nth, kinds[1 + turn++ % (kinds.size() - 1)]);
  }
}

void Sweep::RunPairs() {
  FaultPlan plan;
  plan.windows_too = true;
  plan.status = PRO_TK_GENERAL_ERROR;
  const std::vector<long> places =
      SampledPlaces(static_cast<long>(census_.size()), kDensePairs, kSparsePairs);
  const auto gaps =
      std::span(kPairGaps).first(run_.options.sampled_faults ? 1 : std::size(kPairGaps));
  for (const long first : places) {
    for (const long gap : gaps) {
      plan.nth = first;
      plan.second_nth = first + gap;
      RunOne(plan, "fault crossing " + std::to_string(plan.nth) + " and " +
                       std::to_string(plan.second_nth) + " status general_error");
    }
  }
}

bool Sweep::RunOne(const FaultPlan& plan, const std::string& which) {
  NotePlace(statement_.Place() + ", " + which);
  const RunMark mark = MarkRun(run_);
  const CommandRun result = command_.RunOnce(plan);
  const bool has_struck = run_.host.faults.struck() > 0;
  const std::string at = run_.host.faults.first_struck();
  std::vector<std::string> complaints = command_.Complaints(result);
  const RunOutcome outcome = OutcomeOf(run_, result, mark, folders_);
  if (has_struck) {
    CheckValues(outcome, plan, &complaints);
    CheckOutcome(outcome, plan, &complaints);
  }
  run_.host.faults.Clear();
  PutBack(outcome, &complaints);
  if (!has_struck) return false;
  ++faults_;
  Tell(which, at, complaints);
  return true;
}

void Sweep::CheckValues(const RunOutcome& outcome, const FaultPlan& plan,
                        std::vector<std::string>* complaints) const {
  const bool is_other_work = std::ranges::any_of(
      kChangeWhatIsMeant, [&](const char* name) { return run_.host.faults.HasStruck(name); });
  if (plan.kind != FaultKind::kStatus || is_other_work) return;
  const std::string wrong = WrongValue(outcome, clean_, before_);
  if (!wrong.empty()) complaints->push_back(wrong);
}

// What claims success and gives nothing may be believed, unless it is a text that is missing; and
// nobody can tell of a failure when what tells of it fails as well.
void Sweep::CheckOutcome(const RunOutcome& outcome, const FaultPlan& plan,
                         std::vector<std::string>* complaints) const {
  const Faults& faults = run_.host.faults;
  const bool fails_all = plan.from_then_on && !plan.spares_telling;
  const bool may_lose_log = plan.second_nth != 0 && faults.HasStruckTelling();
  const bool can_be_told = !fails_all && !may_lose_log && !faults.HasStruck("MessageBoxW");
  const bool may_be_believed = plan.kind == FaultKind::kEmptySuccess && !faults.HasStruckText();
  if (may_be_believed || !can_be_told) return;
  const std::string harm = UntoldHarm(outcome, clean_, before_);
  if (!harm.empty()) complaints->push_back(harm);
}

void Sweep::PutBack(const RunOutcome& outcome, std::vector<std::string>* complaints) {
  const auto left = wb::PutBack(run_.host, start_, outcome, before_, folders_);
  complaints->insert(complaints->end(), left.begin(), left.end());
}

void Sweep::Tell(const std::string& which, const std::string& at,
                 const std::vector<std::string>& complaints) {
  if (complaints.empty()) return;
  ++bad_runs_;
  const std::string what = Join("; ", complaints);
  const bool is_first = told_functions_.insert(at).second;
  const bool is_new = told_.insert(at + what).second && told_.size() <= kMostToldRuns;
  if (!is_first && !is_new) return;
  run_.Fail(statement_, which + (at.empty() ? "" : " at " + at) + " (" + run_.host.trace.last() +
                            " was the last call): " + what);
}

}  // namespace wb
