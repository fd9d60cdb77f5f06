// Sweeps of allocations.
#include "workbench/sweep/memory_sweep.h"

#include <cstdio>
#include <limits>

#include "workbench/base/text.h"
#include "workbench/checks/fault_sample.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_watch.h"

namespace wb {
namespace {

// A sample of a kind takes so many from the beginning, and so many spread over the rest.
constexpr long kDense = 64;
constexpr long kSparse = 24;
// And so many where all sweeps are sampled.
constexpr long kFewDense = 16;
constexpr long kFewSparse = 12;
// Nothing is struck, but everything counted.
constexpr long kNever = std::numeric_limits<long>::max();

std::string FaultText(long nth, bool from_then_on) {
  return "fault allocation " + std::to_string(nth) + (from_then_on ? " from_then_on" : "");
}

}  // namespace

MemorySweep::MemorySweep(ScriptRun& run, const Statement& statement)
    : run_(run),
      statement_(statement),
      command_(run, statement),
      start_(run.host, command_.Folders()),
      folders_(command_.Folders()),
      before_(StateNow(run.host, folders_)) {
  command_.IgnoreRestoring();
}

void MemorySweep::Run(const MemorySweepOptions& options) {
  if (options.first_run_line != 0) {
    RunFirst(options);
  } else {
    RunWarm(options.all);
  }
  if (bad_runs_ == 0) run_.Pass();
}

void MemorySweep::RunWarm(bool all) {
  const long allocations = RunClean().allocations;
  const bool few = run_.options.sampled_faults;
  const long dense = all ? allocations : few ? kFewDense : kDense;
  const std::vector<long> places = SampledPlaces(allocations, dense, few ? kFewSparse : kSparse);
  for (const bool from_then_on : {false, true}) RunKind(places, from_then_on);
  std::printf("%s: sweep of %s: %ld allocations, %ld faults, %d bad runs\n",
              statement_.Place().c_str(), statement_.Text("COMMAND").c_str(), allocations, faults_,
              bad_runs_);
}

void MemorySweep::RunKind(const std::vector<long>& places, bool from_then_on) {
  for (const long nth : places) {
    const Judged judged = RunOnce(nth, from_then_on);
    // The command makes fewer of them than it did once.
    if (judged.struck == 0) return;
    ++faults_;
    std::vector<std::string> complaints = judged.complaints;
    const std::string harm = SilentHarm(judged.outcome, clean_, before_);
    if (!harm.empty()) complaints.push_back(harm);
    Tell(FaultText(nth, from_then_on), complaints);
  }
}

void MemorySweep::RunFirst(const MemorySweepOptions& options) {
  const bool only_counts = options.nth == 0;
  const Judged first = RunOnce(only_counts ? kNever : options.nth, options.from_then_on);
  RunClean();
  std::vector<std::string> complaints = first.complaints;
  const std::string harm = SilentHarm(first.outcome, clean_, before_);
  if (!harm.empty()) complaints.push_back(harm);
  Tell(only_counts ? "first run" : FaultText(options.nth, options.from_then_on), complaints);
  std::printf("%s: first run of %s: %ld allocations\n", statement_.Place().c_str(),
              statement_.Text("COMMAND").c_str(), first.allocations);
}

MemorySweep::Judged MemorySweep::RunOnce(long nth, bool from_then_on) {
  NotePlace(statement_.Place() + ", " + FaultText(nth, from_then_on));
  FaultPlan plan;
  plan.kind = FaultKind::kNoMemory;
  plan.nth = nth;
  plan.from_then_on = from_then_on;
  const RunMark mark = MarkRun(run_);
  const CommandRun result = command_.RunOnce(plan);
  Judged judged;
  judged.allocations = run_.host.faults.seen();
  judged.struck = run_.host.faults.struck();
  judged.complaints = command_.Complaints(result);
  run_.host.faults.Clear();
  judged.outcome = OutcomeOf(run_, result, mark, folders_);
  const auto left = PutBack(run_.host, start_, judged.outcome, before_, folders_);
  judged.complaints.insert(judged.complaints.end(), left.begin(), left.end());
  return judged;
}

MemorySweep::Judged MemorySweep::RunClean() {
  Judged clean = RunOnce(kNever, false);
  clean_ = clean.outcome;
  Tell("without any fault", clean.complaints);
  return clean;
}

void MemorySweep::Tell(const std::string& which, const std::vector<std::string>& complaints) {
  if (complaints.empty() || ++bad_runs_ > kMostToldRuns) return;
  run_.Fail(statement_, which + " (" + run_.host.trace.last() +
                            " was the last call): " + Join("; ", complaints));
}

}  // namespace wb
