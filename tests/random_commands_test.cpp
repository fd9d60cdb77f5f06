// Commands in random order, with random preselections and answers: none misuses the host or leaves
// anything out, and once all that is kept for good is there, nothing grows.
#include <gtest/gtest.h>

#include "tests/long_run.h"
#include "tests/random_user.h"
#include "tests/skid_host.h"
#include "workbench/bench/bench_heap.h"
#include "workbench/script/script_snapshot.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

namespace wb {
namespace {

// Each round is run twice, the first time to fill what is kept for good.
constexpr unsigned kCommandsOfRound = 100;
constexpr unsigned kFewRounds = 1;
constexpr unsigned kManyRounds = 50;

class RandomCommands : public SkidHost {
 protected:
  RandomCommands() : SkidHost("random") { host_.user = &user_; }

  // What a round does follows from its seed alone.
  void RunRound(unsigned seed, const SessionSnapshot& start) {
    user_.Begin(seed);
    for (unsigned i = 0; i < kCommandsOfRound && !HasFailure(); ++i) {
      start.Restore(host_);
      RunAny("QM_SEED=" + std::to_string(seed) + ", command " + std::to_string(i + 1));
    }
    start.Restore(host_);
  }

  unsigned carried_out_ = 0;  // of those that the user clicked

 private:
  void RunAny(const std::string& which) {
    const Commands& known = host_.commands;
    const std::string command = known.commands[user_.Below(known.commands.size())].name;
    ShowFor(command);
    if (!user_.OneIn(3)) host_.session.selection_buffer = user_.SomeComponents();
    const CommandRun run = RunCommand(command);
    if (run.available) ++carried_out_;
    EXPECT_EQ(run.left_out, Lines()) << which << ": " << command;
    EXPECT_EQ(TakeBreaches(), Lines()) << which << ": " << command;
    host_.events.Forget<MessageBox>();
    host_.events.Forget<Gap>();  // what the workbench does not know is no fault of the plug-in
  }

  // A model for which the command is available, if chance finds one.
  void ShowFor(const std::string& command) {
    for (size_t tries = 2 * std::size(kShown); tries > 0; --tries) {
      Model* const model = host_.session.Find(kShown[user_.Below(std::size(kShown))]);
      if (model == nullptr) continue;
      Show(*model);
      if (AskAccess(command) == ACCESS_AVAILABLE) return;
    }
  }

  RandomUser user_{host_};
  SpreadsheetServer spreadsheet_{host_};
};

TEST_F(RandomCommands, LeaveNothingBehindAndNothingGrows) {
  Plugin plugin(Installed().dll());
  ASSERT_EQ(plugin.Start(), 0);
  const SessionSnapshot start(host_, Folders());
  const HeapWatch heap(::GetModuleHandleW(Installed().dll().c_str()));
  const unsigned first = FirstSeed();
  const unsigned rounds = IsLongRun() ? kManyRounds : kFewRounds;
  for (unsigned seed = first; seed != first + rounds && !HasFailure(); ++seed) {
    RunRound(seed, start);
    const long long live = heap.live();
    const DWORD handles = HandleCount();
    RunRound(seed, start);
    EXPECT_GT(carried_out_, kCommandsOfRound) << "hardly anything was available";
    carried_out_ = 0;
    EXPECT_EQ(heap.live(), live) << "the heap after the second round of QM_SEED=" << seed;
    EXPECT_EQ(HandleCount(), handles) << "after the second round of QM_SEED=" << seed;
  }
  EXPECT_GT(heap.peak(), 0);
}

}  // namespace
}  // namespace wb
