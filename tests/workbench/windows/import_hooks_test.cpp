// The Windows calls of a loaded plug-in: recorded, answered, and open to faults.
#include "tests/absent_user.h"
#include "tests/workbench/host/host_fixture.h"
#include "workbench/plugin/plugin.h"
#include "workbench/plugin/timers.h"

namespace wb {
namespace {

// Answers every box and file request alike.
class SteadyUser : public AbsentUser {
 public:
  std::optional<std::string> ChooseFile(const FileRequest&) override { return file; }
  int AnswerMessageBox(const MessageBox&) override { return box_answer; }

  std::optional<std::string> file;
  int box_answer = IDNO;
};

class ImportHooks : public HostFixture {
 protected:
  ImportHooks() {
    plugin_.Start();
    host_.user = &user_;
  }
  int Run(const std::string& command) { return RunCommand(command).status; }

  SteadyUser user_;
  Plugin plugin_{TestBinaryFolder() / "windows_caller.dll"};
};

TEST_F(ImportHooks, AMessageBoxIsRecordedAndAnsweredByTheUser) {
  EXPECT_EQ(Run("Box"), IDNO);
  const auto boxes = host_.events.All<MessageBox>();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].caption, "Caption");
  EXPECT_EQ(boxes[0].text, "Delete all?");
  host_.user = nullptr;
  EXPECT_EQ(Run("Box"), IDOK);
}

TEST_F(ImportHooks, ABoxOnAnotherThreadIsABreachButAnswered) {
  EXPECT_EQ(Run("ThreadBox"), IDOK);
  EXPECT_EQ(Breaches(), (Lines{"plug-in misused MessageBoxW: called from a thread that is not the "
                               "user-interface thread"}));
}

TEST_F(ImportHooks, AThreadMayClickWhatADialogTakes) {
  EXPECT_EQ(Run("ThreadClick"), 0);
  const auto clicks = host_.events.All<MouseEvent>();
  ASSERT_EQ(clicks.size(), 1u);
  EXPECT_TRUE(clicks[0].IsMiddleClick());
  EXPECT_EQ(Breaches(),
            Lines{"plug-in misused mouse_event: a middle click that no dialog has taken"});
}

TEST_F(ImportHooks, AThreadIsWaitedForAndItsHandleClosed) {
  Run("LeftThread");
  EXPECT_EQ(Breaches(),
            (Lines{"plug-in misused CreateThread: nobody has waited for the thread's end",
                   "plug-in misused CreateThread: the thread's handle was not closed"}));
}

TEST_F(ImportHooks, ATimerThatCouldNotBeStoppedFiresAgainAndIsNotHeldAgainstThePlugin) {
  Run("Timer");
  host_.faults.Order({.function = "KillTimer", .nth = 1});
  FireTimers();
  host_.faults.Clear();
  EXPECT_EQ(host_.windows.timers.size(), 1u);
  plugin_.Stop();
  EXPECT_EQ(Breaches(), Lines{});
}

TEST_F(ImportHooks, ANumberInAMessageGoesByAddress) {
  Run("NumberByValue");
  EXPECT_EQ(host_.events.AllTexts<Note>(), Lines{});
  EXPECT_EQ(Breaches(),
            (Lines{"plug-in misused ProMessageDisplay: a number of \"Moved %0w\" is not "
                   "given by address"}));
}

struct AnyProgram : AutomationProgram {
  long ClassOf(const std::string&, void*) override { return S_OK; }
  long Start(const void*, const void*, void**) override { return S_OK; }
  Lines Settle(long) override { return {}; }
};

TEST_F(ImportHooks, AnObjectOfAnotherProgramIsRefusedUnlessAStandInMakesIt) {
  EXPECT_EQ(Run("Object"), REGDB_E_CLASSNOTREG);
  AnyProgram program;
  host_.automation = &program;
  EXPECT_EQ(Run("Object"), S_OK);
  host_.automation = nullptr;
  Lines classes;
  for (const ClassRequest& request : host_.events.All<ClassRequest>())
    classes.push_back(request.id);
  EXPECT_EQ(classes, Lines(2, "{00021401-0000-0000-C000-000000000046}"));
}

struct NaturalFailure {
  const char* command;
  const char* function;
  int failure;
};

TEST_F(ImportHooks, AFaultMakesEachCallFailInItsOwnWay) {
  const NaturalFailure kFailures[] = {
      {"Box", "MessageBoxW", 0},
      {"Explorer", "ShellExecuteW", 2},
      {"Notepad", "WinExec", 2},
      {"Timer", "SetTimer", TRUE},
      {"Desktop", "SHGetSpecialFolderPathW", FALSE},
      {"LocalFolder", "SHGetFolderPathW", FALSE},
      {"OpenFile", "GetOpenFileNameW", FALSE},
      {"SaveFile", "GetSaveFileNameW", FALSE},
      {"OpenNul", "CreateFileW", ERROR_ACCESS_DENIED},
      {"DeleteNothing", "DeleteFileW", ERROR_ACCESS_DENIED},
      {"LookAtFile", "GetFileAttributesExW", ERROR_ACCESS_DENIED},
      {"OpenClipboard", "OpenClipboard", ERROR_ACCESS_DENIED},
      {"CurrentFolder", "GetCurrentDirectoryW", ERROR_ACCESS_DENIED},
      {"OwnFile", "GetModuleFileNameW", ERROR_MOD_NOT_FOUND},
      {"ComText", "SysAllocStringLen", TRUE},
      {"ComStart", "CoInitializeEx", E_OUTOFMEMORY},
  };
  user_.file = "C:\\a";
  for (const NaturalFailure& row : kFailures) {
    SCOPED_TRACE(row.function);
    host_.faults.Order({.function = row.function, .nth = 1});
    EXPECT_EQ(Run(row.command), row.failure);
    EXPECT_EQ(host_.faults.struck(), 1);
    EXPECT_EQ(host_.trace.Count(row.function), 1);
  }
}

TEST_F(ImportHooks, ACallKeepsTheErrorThatWindowsLeftWhateverTheHostDoesAfterIt) {
  EXPECT_EQ(Run("DeleteNothing"), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(Run("OpenNul"), 0);
}

TEST_F(ImportHooks, FaultsOfAnyFunctionSpareWindowsUnlessThePlanSaysSo) {
  host_.faults.Order({.function = "", .nth = 1});
  EXPECT_EQ(Run("Box"), IDNO);
  host_.faults.Order({.function = "", .windows_too = true, .nth = 1});
  EXPECT_EQ(Run("Box"), 0);
}

TEST_F(ImportHooks, AFileThatIsNotTheRunLogIsNotSparedByWhatSparesTelling) {
  host_.windows.local_app_folder = folder_;
  host_.faults.Order({.function = "",
                      .windows_too = true,
                      .nth = 1,
                      .from_then_on = true,
                      .spares_telling = true});
  EXPECT_EQ(Run("DeleteNothing"), ERROR_ACCESS_DENIED);
  EXPECT_EQ(Run("OpenNul"), ERROR_ACCESS_DENIED);
  EXPECT_FALSE(host_.faults.HasStruckTelling());
}

}  // namespace
}  // namespace wb
