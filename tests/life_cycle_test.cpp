// Starts, stops, loads and unloads of the plug-in, a great many of them and disturbed ones.
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "tests/plugin_host.h"
#include "tests/skid_host.h"
#include "tests/source_folder.h"
#include "workbench/bench/bench_heap.h"
#include "workbench/script/script_snapshot.h"
#include "workbench/spreadsheet/spreadsheet_server.h"

#include <psapi.h>

namespace wb {
namespace {

// The plug-in under a name of its own: what was looked up once is never looked up again.
std::filesystem::path CopiedLibrary(const std::string& name) {
  const std::filesystem::path dll = Installed().tree() / name;
  std::filesystem::copy_file(Installed().dll(), dll,
                             std::filesystem::copy_options::overwrite_existing);
  return dll;
}

class LifeCycle : public PluginHost {
 protected:
  void StartAndStop(Plugin& plugin) {
    ASSERT_EQ(plugin.Start(), 0);
    plugin.Stop();
    ASSERT_EQ(TakeBreaches(), Lines());
    ASSERT_TRUE(host_.accounts.open().empty());
    host_.trace.Restart();
  }
};

long long MemoryInUse() {
  PROCESS_MEMORY_COUNTERS counters = {};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
  return static_cast<long long>(counters.PagefileUsage);
}

TEST_F(LifeCycle, AThousandStartsAndStopsLeaveNothingBehind) {
  Plugin plugin(Installed().dll());
  // The first ones fill what is kept for good: looked-up functions, message files.
  for (int i = 0; i < 10; ++i) ASSERT_NO_FATAL_FAILURE(StartAndStop(plugin));
  const DWORD handles_before = HandleCount();
  const HeapWatch heap(::GetModuleHandleW(Installed().dll().c_str()));
  for (int i = 10; i < 1000; ++i) ASSERT_NO_FATAL_FAILURE(StartAndStop(plugin)) << i;
  EXPECT_GT(heap.peak(), 0);
  EXPECT_EQ(heap.live(), 0);
  EXPECT_EQ(HandleCount(), handles_before);
  EXPECT_TRUE(host_.windows.timers.empty());
  EXPECT_TRUE(host_.commands.commands.empty());
  EXPECT_TRUE(host_.events.All<MessageBox>().empty());
}

// Closes each dialog, chooses and picks nothing, and reads boxes away.
class ClosingUser : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    dialog.Fire("", kCloseEvent);
    if (!dialog.ended) dialog.Fire("Close", kActivateEvent);
    if (dialog.ended) return;
    TheHost().ReportBreach("ProUIDialogActivate", "the dialog " + dialog.name + " stays open");
    dialog.ended = true;
  }
};

class LifeOfAllCommands : public SkidHost {
 protected:
  LifeOfAllCommands() : SkidHost("life") {
    host_.user = &user_;
    host_.writers.Order(std::nullopt, WriterConduct::kWritesNothing, "");
  }

  // What the plug-in has registered and started in the host.
  struct Registered {
    size_t commands;
    size_t menus;
    size_t notifications;
    size_t timers;
    bool operator==(const Registered&) const = default;
  };

  // From the start of the plug-in to its end, with every command clicked once; gives what was
  // registered when the last one had ended.
  Registered Live(Plugin& plugin) {
    start_.Restore(host_);
    EXPECT_EQ(plugin.Start(), 0);
    for (const std::string& command : Names()) Click(command);
    const Commands& held = host_.commands;
    const Registered registered = {held.commands.size(), held.menus.size(),
                                   held.notifications.size(), host_.windows.timers.size()};
    plugin.Stop();
    EXPECT_EQ(TakeBreaches(), Lines());
    EXPECT_TRUE(host_.accounts.open().empty());
    Forget();
    return registered;
  }

 private:
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const Command& command : host_.commands.commands) names.push_back(command.name);
    return names;
  }

  void Click(const std::string& command) {
    for (const ModelName& name : kShown) {
      // A command may have erased what was not shown.
      Model* const model = host_.session.Retrieve(name);
      if (model != nullptr) Show(*model);
      if (AskAccess(command) == ACCESS_AVAILABLE) break;
    }
    const CommandRun run = RunCommand(command);
    EXPECT_TRUE(run.available) << command;
    EXPECT_EQ(run.left_out, Lines()) << command;
  }

  // What the workbench keeps of a life.
  void Forget() {
    host_.trace.Restart();
    host_.dialogs.pictures.clear();
    host_.events.Forget<MessageBox>();
    host_.events.Forget<Gap>();
  }

  ClosingUser user_;
  SpreadsheetServer spreadsheet_{host_};
  const SessionSnapshot start_{host_, Folders()};
};

TEST_F(LifeOfAllCommands, ADozenLivesLeaveWhatTheFirstOneLeft) {
  constexpr int kLives = 12;
  Plugin plugin(Installed().dll());
  const Registered first = Live(plugin);
  EXPECT_EQ(first.commands, 55u);
  const DWORD handles = HandleCount();
  const HeapWatch heap(::GetModuleHandleW(Installed().dll().c_str()));
  for (int life = 1; life <= kLives && !HasFailure(); ++life) {
    EXPECT_EQ(Live(plugin), first) << "life " << life;
    EXPECT_EQ(heap.live(), 0) << "life " << life;
    EXPECT_EQ(HandleCount(), handles) << "life " << life;
  }
  EXPECT_GT(heap.peak(), 0);
}

// A library that was never started goes with its unloading, and takes everything along.
TEST_F(LifeCycle, TwoThousandLoadsAndUnloadsWithoutAStart) {
  const std::filesystem::path dll = CopiedLibrary("unstarted.dll");
  constexpr long long kNoise = 2 * 1024 * 1024;
  long long memory_before = 0;
  for (int i = 0; i < 2000; ++i) {
    if (i == 100) memory_before = MemoryInUse();
    const Plugin plugin(dll);
    ASSERT_FALSE(plugin.started());
  }
  EXPECT_EQ(::GetModuleHandleW(dll.c_str()), nullptr);
  EXPECT_GT(memory_before, 0);
  EXPECT_LT(MemoryInUse() - memory_before, kNoise);
  EXPECT_EQ(TakeBreaches(), Lines());
}

// All functions of the host by their plain names.
std::set<std::string> HostFunctions() {
  std::set<std::string> names;
  std::ifstream notes(SourceFolder() / "docs" / "host-api-notes.txt");
  for (std::string line; std::getline(notes, line);) {
    if (line.starts_with("Pro")) names.insert(line.substr(0, line.find(' ')));
  }
  return names;
}

TEST_F(LifeCycle, AProcessThatOffersNothingAtAllIsRefusedWithASentence) {
  Plugin plugin(CopiedLibrary("foreign.dll"));
  host_.windows.withheld = HostFunctions();
  ASSERT_GT(host_.windows.withheld.size(), 100u);
  for (int i = 0; i < 2; ++i) {
    EXPECT_NE(plugin.Start(), 0);
    EXPECT_EQ(
        plugin.refusal(),
        "羽石工具箱未能启动：在宿主程序中找不到任何接口函数，请检查插件与宿主的版本是否一致。");
  }
  for (const auto& [function, count] : host_.trace.Counts()) {
    EXPECT_FALSE(function.starts_with("Pro")) << function;
  }
  EXPECT_TRUE(host_.windows.timers.empty());
  EXPECT_EQ(TakeBreaches(), Lines());
  // One that offers anything is told apart, and what is missing is named as ever.
  host_.windows.withheld.erase("ProMdlCurrentGet");
  EXPECT_EQ(plugin.Start(), 0);
}

// A start with the n-th of the plug-in's own allocations failed.
class ShortMemory : public LifeCycle {
 protected:
  // Started whole, or refused whole with the reason. True when the failure has happened.
  bool StartShort(Plugin& plugin, long nth, bool from_then_on) {
    FaultPlan plan;
    plan.kind = FaultKind::kNoMemory;
    plan.nth = nth;
    plan.from_then_on = from_then_on;
    host_.faults.Order(plan);
    const int answer = plugin.Start();
    const bool struck = host_.faults.struck() > 0;
    host_.faults.Clear();
    EXPECT_EQ(plugin.refusal(), answer == 0 ? "" : kRefusal) << "allocation " << nth;
    EXPECT_EQ(host_.commands.commands.size(), answer == 0 ? 55u : 0u) << "allocation " << nth;
    EXPECT_TRUE(answer == 0 || host_.windows.timers.empty());
    if (answer == 0) plugin.Stop();
    EXPECT_EQ(TakeBreaches(), Lines()) << "allocation " << nth;
    host_.trace.Restart();
    return struck;
  }

  static constexpr const char* kRefusal = "羽石工具箱未能启动：内存不足，请关闭其他程序后重试。";
};

// Each loading and unloading of a library that throws costs the process a thread-local slot, and
// there are about a thousand: a started plug-in stays loaded.
TEST_F(ShortMemory, TwoThousandLoadsAndUnloadsWithExceptionsInside) {
  Plugin first(Installed().dll());
  int struck = 0;
  for (int i = 0; i < 2000; ++i) {
    Plugin plugin(Installed().dll());
    if (i % 10 == 0 && StartShort(plugin, 1 + i / 10 % 4, false)) ++struck;
  }
  EXPECT_GT(struck, 100);
}

TEST_F(ShortMemory, AStartIsWholeOrRefusedWhicheverAllocationFails) {
  Plugin plugin(Installed().dll());
  for (const bool from_then_on : {false, true}) {
    long nth = 1;
    while (StartShort(plugin, nth, from_then_on)) ++nth;
    EXPECT_GT(nth, 3);
  }
}

// Each under a name of its own, so that the run-time inside it has made nothing yet: its state on
// the thread is what the first allocations are for.
TEST_F(ShortMemory, AFirstStartLivesWhicheverAllocationFails) {
  for (const bool from_then_on : {false, true}) {
    long nth = 0;
    for (bool struck = true; struck;) {
      Plugin plugin(
          CopiedLibrary(std::to_string(++nth) + (from_then_on ? " on.dll" : " once.dll")));
      struck = StartShort(plugin, nth, from_then_on);
      EXPECT_EQ(plugin.Start(), 0) << "after a failure at allocation " << nth;
    }
    EXPECT_GT(nth, 10);
  }
}

// Faults of every kind, at each call in turn until none is left to fail.
struct FaultRow {
  const char* name;
  FaultKind kind;
  int status;
  bool from_then_on;
};
constexpr FaultRow kFaults[] = {
    {"GeneralErrorOnce", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, false},
    {"GeneralErrorFromThenOn", FaultKind::kStatus, PRO_TK_GENERAL_ERROR, true},
    {"BadContextOnce", FaultKind::kStatus, PRO_TK_BAD_CONTEXT, false},
    {"BadContextFromThenOn", FaultKind::kStatus, PRO_TK_BAD_CONTEXT, true},
    {"EmptySuccessOnce", FaultKind::kEmptySuccess, PRO_TK_NO_ERROR, false},
    {"EmptySuccessFromThenOn", FaultKind::kEmptySuccess, PRO_TK_NO_ERROR, true},
};

class DisturbedLifeCycle : public PluginHost, public testing::WithParamInterface<FaultRow> {
 protected:
  // Runs `part` with its n-th call of the host or of Windows failed, for each n, and what belongs
  // before and behind it undisturbed; gives the first n that there is no call for.
  template <class Before, class Part, class Behind>
  int DisturbEach(const Before& before, const Part& part, const Behind& behind) {
    for (int nth = 1;; ++nth) {
      SCOPED_TRACE("call " + std::to_string(nth));
      before();
      OrderFault(nth);
      part();
      const bool struck = host_.faults.struck() > 0;
      host_.faults.Clear();
      behind();
      EXPECT_EQ(TakeBreaches(), Lines());
      EXPECT_TRUE(host_.accounts.open().empty());
      host_.trace.Restart();
      if (!struck || HasFailure()) return nth;
    }
  }
  void Start() { EXPECT_EQ(plugin_.Start(), 0); }
  void Stop() { plugin_.Stop(); }

 private:
  void OrderFault(int nth) {
    const FaultRow& row = GetParam();
    FaultPlan plan;
    plan.windows_too = true;
    plan.nth = nth;
    plan.from_then_on = row.from_then_on;
    plan.kind = row.kind;
    plan.status = row.status;
    host_.faults.Order(plan);
  }

  Plugin plugin_{Installed().dll()};
};

TEST_P(DisturbedLifeCycle, StartAnswersSuccessWhicheverOfItsCallsFails) {
  EXPECT_GT(DisturbEach([] {}, [&] { Start(); }, [&] { Stop(); }), 200);
}

TEST_P(DisturbedLifeCycle, StopLeavesNothingOutWhicheverOfItsCallsFails) {
  EXPECT_GT(DisturbEach([&] { Start(); }, [&] { Stop(); }, [] {}), 2);
}

INSTANTIATE_TEST_SUITE_P(EveryCall, DisturbedLifeCycle, testing::ValuesIn(kFaults),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace wb
