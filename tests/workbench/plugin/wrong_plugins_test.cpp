// Plug-ins that break one rule each: every breach is caught and named.
#include <algorithm>

#include "tests/workbench/host/host_fixture.h"
#include "workbench/plugin/plugin.h"

namespace wb {
namespace {

struct WrongPlugin {
  const char* stem;
  std::string breach;             // empty: none
  std::string left_out = "";      // empty: nothing
  std::string not_modelled = "";  // empty: nothing
};

std::ostream& operator<<(std::ostream& out, const WrongPlugin& plugin) {
  return out << plugin.stem;
}

Lines OneOrNone(const std::string& line) {
  return line.empty() ? Lines{} : Lines{line};
}

class WrongPlugins : public HostFixture, public testing::WithParamInterface<WrongPlugin> {
 protected:
  WrongPlugins() {
    Model& assembly = ShowAssembly();
    host_.session.selection_buffer.push_back({1, 0, &assembly, &assembly, {}});
    WriteFile("text/resource/Small.res",
              "(Dialog Small\n  (Components\n    (PushButton Ok)\n  )\n"
              "  (Resources\n    (Ok.Label \"OK\")\n    (.Layout\n      (Grid (Rows 1) (Cols 1)\n"
              "        Ok\n      )\n    )\n  )\n)\n");
  }

  CommandRun RunWrong(const std::string& stem) {
    Plugin plugin(TestBinaryFolder() / ("wrong_" + stem + ".dll"));
    EXPECT_EQ(plugin.Start(), 0);
    return RunCommand("Wrong");
  }
};

TEST_P(WrongPlugins, AreCaughtAndNamed) {
  const WrongPlugin& wrong = GetParam();
  const CommandRun run = RunWrong(wrong.stem);
  EXPECT_TRUE(run.available);
  EXPECT_EQ(Breaches(), OneOrNone(wrong.breach));
  EXPECT_EQ(run.left_out, OneOrNone(wrong.left_out));
  EXPECT_EQ(host_.events.AllTexts<Gap>(), OneOrNone(wrong.not_modelled));
}

const WrongPlugin kWrongPlugins[] = {
    {"stale_handle",
     "plug-in misused ProSelectionModelitemGet: stale selection handle (its object is gone)"},
    {"erased_model", "plug-in misused ProMdlNameGet: stale model handle (its object is gone)"},
    {"destroyed_dialog", "plug-in misused ProUIDialogDestroy: there is no dialog \"Small\""},
    {"leaked_array", "", "array from ProArrayAlloc (call 1)"},
    {"leaked_selection", "", "selection from ProSelbufferSelectionsGet (call 1)"},
    {"leaked_dialog", "", "dialog from ProUIDialogCreate (call 1)"},
    {"unanswered_dialog", "", "",
     "workbench: not modelled: ProUIDialogActivate: a dialog that nobody works"},
    {"escaping_exception", "plug-in misused Wrong: exception across the boundary: no such thing"},
    {"throwing_visit", "plug-in misused ProSolidFeatVisit: exception across the boundary"},
    {"unknown_function", "", "", "workbench: not modelled: ProTeapotBoil"},
    {"wrong_kind",
     "plug-in misused ProSelectionModelitemGet: a model handle given as a selection handle"},
    {"overlong_name", "plug-in misused ProCmdCmdIdFind: command name longer than 31 characters"},
    {"other_thread",
     "plug-in misused ProModeCurrentGet: called from a thread that is not the user-interface "
     "thread"},
    {"double_free", "plug-in misused ProArrayFree: array used after it was freed"},
    {"freed_array", "plug-in misused ProArraySizeGet: array used after it was freed"},
    {"foreign_pointer", "plug-in misused ProMdlTypeGet: foreign pointer given as a model handle"},
    {"null_place", "plug-in misused ProModeCurrentGet: null mode place"},
    {"unknown_timer", "plug-in misused KillTimer: there is no timer 4711"},
    {"left_timer",
     "plug-in misused user_terminate: left timer 20480 pending, which would call the plug-in after "
     "it has gone"},
};
INSTANTIATE_TEST_SUITE_P(All, WrongPlugins, testing::ValuesIn(kWrongPlugins),
                         [](const auto& param) { return std::string(param.param.stem); });

TEST_F(WrongPlugins, AWorkingDirectoryLeftChangedShows) {
  const CommandRun run = RunWrong("left_directory");
  EXPECT_EQ(run.directory_before, folder_);
  EXPECT_EQ(run.directory_after, folder_ / "text");
}

// The process that goes down is a copy of this one.
using WrongPluginsDeathTest = WrongPlugins;

TEST_F(WrongPluginsDeathTest, ACrashNamesCommandPlaceAndLastHostCall) {
  EXPECT_EXIT(RunWrong("crash"), testing::ExitedWithCode(3),
              "plug-in crashed in Wrong at wrong_crash.dll.0x\\w+, last host call "
              "ProModeCurrentGet");
}

TEST_F(WrongPluginsDeathTest, ACallOfNothingIsToldByItsAddress) {
  EXPECT_EXIT(RunWrong("null_jump"), testing::ExitedWithCode(3),
              "plug-in crashed in Wrong at 0+ .in no module., last host call none");
}

TEST_F(WrongPluginsDeathTest, AnEndlessDescentNamesTheCommand) {
  EXPECT_EXIT(RunWrong("endless_descent"), testing::ExitedWithCode(3),
              "plug-in ran out of stack in Wrong at wrong_endless_descent.dll");
}

TEST_F(WrongPluginsDeathTest, AnAbortNamesTheCommand) {
  EXPECT_EXIT(RunWrong("abort"), testing::ExitedWithCode(3),
              "plug-in aborted in Wrong, last host call none");
}

TEST(PluginFile, ThatCannotBeLoadedIsNamed) {
  const Host host;
  try {
    const Plugin plugin(TestBinaryFolder() / "no_such_plugin.dll");
    FAIL() << "loaded";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what()).find("no_such_plugin.dll"), std::string::npos);
  }
}

}  // namespace
}  // namespace wb
