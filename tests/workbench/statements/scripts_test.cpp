// Runs every script of tests/scripts and the demo's as a test of its own. Further: what the runner
// itself must catch. Each script has a process of its own, since a plug-in stays loaded from where
// it was loaded first, and takes its settings from there.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "tests/long_run.h"
#include "tests/source_folder.h"
#include "tests/workbench/error_from.h"
#include "tests/workbench/test_paths.h"
#include "workbench/base/text.h"
#include "workbench/reasons/own_path.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/fault_statements.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = SourceFolder();

std::vector<fs::path> Scripts() {
  std::vector<fs::path> scripts;
  for (const fs::path& folder : {kSource / "tests" / "scripts", kSource / "demo"}) {
    for (const auto& item : fs::recursive_directory_iterator(folder)) {
      if (item.path().extension() == ".qms") scripts.push_back(item.path());
    }
  }
  return scripts;
}

// What sweeps say of themselves is for the table of docs/reliability.md; of a script that fails all
// is told anyway.
void PassOnSweeps(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.find(": sweep of ") != std::string::npos) std::printf("%s\n", Trimmed(line).c_str());
  }
}

void ExpectPasses(const std::vector<std::string>& arguments) {
  const std::string text = OutputOf(TestBinaryFolder() / "workbench.exe", arguments)
                               .value_or("workbench.exe cannot be started");
  // What came before it in a script that is skipped holds as well.
  EXPECT_NE(text.find(" passed, 0 failed"), std::string::npos) << text;
  if (text.find(": skipped, since ") != std::string::npos) GTEST_SKIP() << text;
  EXPECT_EQ(text.find("\n0 passed"), std::string::npos) << text;
  if (!testing::Test::HasFailure()) PassOnSweeps(text);
}

class Script : public testing::TestWithParam<fs::path> {
 protected:
  // The long run fails every call, the ordinary one a sample.
  static void ExpectItPasses(std::vector<std::string> options) {
    options.insert(options.begin(), {"run", PathToUtf8(GetParam())});
    if (!IsLongRun()) options.push_back("--sampled-faults");
    ExpectPasses(options);
  }
};

TEST_P(Script, Passes) {
  ExpectItPasses({});
}

TEST_P(Script, PassesOnAHostOfOtherHabits) {
  ExpectItPasses({"--other-habits"});
}

INSTANTIATE_TEST_SUITE_P(Files, Script, testing::ValuesIn(Scripts()),
                         [](const auto& script) { return PathToUtf8(script.param.stem()); });

// Every "what" taken out of "text".
std::string Without(const std::string& what, std::string text) {
  for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
    text.erase(at, what.size());
  }
  return text;
}

// Between folders and files, as the user's own machine writes it.
std::string FolderSlash() {
  return OwnPath(fs::temp_directory_path()).starts_with("/") ? "/" : "\\";
}

// Runs a script text and gives its failures, "scripts_test.qms:LINE: REASON" a line.
std::string FailuresOf(const std::string& text, const std::vector<std::string>& options = {}) {
  const fs::path file = fs::temp_directory_path() / "scripts_test.qms";
  std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
  std::vector<std::string> arguments = {"run", PathToUtf8(file)};
  arguments.insert(arguments.end(), options.begin(), options.end());
  const std::string output =
      OutputOf(TestBinaryFolder() / "workbench.exe", arguments).value_or("it cannot be started");
  fs::remove(file);
  const std::string lines =
      Without(OwnPath(file.parent_path()) + FolderSlash(), Without("\r", output));
  // The count closes it.
  return lines.substr(0, lines.rfind("scripts_test.qms: "));
}

constexpr const char* kPump = "part bolt\nassembly pump\ncomponent pump <- bolt\nopen pump\n";

// Statements behind kPump, and what the report of their failure begins with.
constexpr struct {
  const char* statements;
  const char* failure;
} kUnanswered[] = {
    {"run QmQQGroup", "5: dialog QmQQGroup opened and nobody answers it; it has\n"},
    {"run QmIsolate",
     "5: message box that the script does not name: caption "
     "\"\\t请先选择需要独立显示的模型\\t\"\n"},
    {"run BoxSel", "5: a pick of part (at most -1) was asked for and nobody answers\n"},
    {"run QmConfig with\ndialog QmConfig\npress SelA0Asm\nclose\nend\nend",
     "8: a file was asked for by ProFileOpen"},
    {"run QmQQGroup with\ndialog QmQQGroup\nend\nend",
     "6: dialog QmQQGroup is still open after the last answer; it has\n"},
    {"run ForTest with\n  pick rotor/bolt#2  # the second\nend",
     "6: not used, since the command had ended before: pick rotor/bolt#2\n"},
    {"run QmQQGroup with\ndialog QmQQGroup\nclose\npress Close\nend\nend",
     "8: not used, since the dialog had ended before: press Close\n"},
    {"run QmIsolate with\nmessage plain other\nend",
     "6: message box, expected plain \"other\", got caption \"\\t请先选择"},
    {"run QmParams with\ndialog QmParams\npress Nothing\nclose\nend\nend",
     "7: dialog QmParams has no component Nothing; it has\nInputPanel ParaName"},
    {"fault ProMdlNameGet 1 status general_error\nrun ForTest",
     "6: the fault ordered for it did not strike"},
    {"run ForTest\nfault any 1 empty", "6: no action followed the fault ordered"},
    {"expect calls ProMdlNameGte none", "5: neither the host nor the intercepted part"},
    {"", " checks nothing"},
    {"run ForTest with\nat call 3 of ProMdlCurrentGet\nerase bolt\nend\nend",
     "6: never came: at call 3 of ProMdlCurrentGet (1 of them)\n"},
    {"run QmQQGroup with\ndialog QmQQGroup\nat call 1 of any\nclose\nend\nend\nend",
     "7: never came: at call 1 of any (no call)\nscripts_test.qms:6: dialog QmQQGroup is still"},
    {"run ForTest with\nat call 1 of ProMdlCurrentGet\nerase bolt\nclose\nend\nend",
     "8: no dialog is open\n"},
    {"mode part\nrun QmIsolate",
     "6: QmIsolate is not available here: the current model is pump.asm, in part mode by the "
     "script; the command wants assembly or manufacturing mode\n"},
    {"close window\nexpect access SameScale is available",
     "6: SameScale, expected available, got unavailable: no model is current; the command wants "
     "drawing mode\n"},
    {"run QmIsolte",
     "5: the plug-in has registered no command QmIsolte; did you mean QmIsolate?\n"},
    {"erase bolt.drw\nrun ForTest",
     "5: there is no model \"bolt.drw\" in session; did you mean \"bolt.prt\"?; in session: "
     "bolt.prt, pump.asm; the script ends here"},
    {"save bolt\nerase bolt\nselect .\nerase bolt",
     "8: there is no model \"bolt\" in session; in session: pump.asm; its file lies in the "
     "working "
     "directory, \"retrieve bolt.prt\" brings it into session; the script ends here"},
    {"select pump/bolt",
     "5: pump.asm has no component \"pump\"; paths offered: bolt; the script ends here"},
    {"expect hidden bolt", "5: bolt, expected hidden, got shown"},
    {"assembly rotor\ncomponent pump <- rotor times 2\ncomponent rotor <- bolt\n"
     "component rotor <- pump",
     "8: rotor.asm would hold itself: rotor.asm > pump.asm > rotor.asm; the script ends here"},
    {"manufacturing mill of pump\ncomponent pump <- mill",
     "6: pump.asm would hold itself: pump.asm > mill.mfg > pump.asm; the script ends here"},
    {"run QmParams with\ndialog QmParams\npress 模型类型\nclose\nend\nend",
     "7: the label \"模型类型\" is that of TypeRadio (\"参数对象/模型类型\"), TypeRadio2 "
     "(\"外形尺寸与图幅参数/模型类型\"); say which\n"},
};

TEST(ScriptRunner, WhatNobodyAnswersFailsWithWhatWasAsked) {
  for (const auto& item : kUnanswered) {
    const std::string failures = FailuresOf(std::string(kPump) + item.statements + "\n");
    EXPECT_EQ(failures.find("scripts_test.qms:" + std::string(item.failure)), 0u)
        << item.statements << "\n"
        << failures;
  }
}

// The lines of `text` between the line that begins with `before` and the first one that is `last`,
// which is among them.
std::string LinesBetween(const std::string& text, const std::string& before,
                         const std::string& last) {
  const size_t heading = text.find(before);
  if (heading == std::string::npos) return {};
  const size_t begin = text.find('\n', heading) + 1;
  const size_t end = text.find("\n" + last + "\n", begin);
  return end == std::string::npos ? "" : text.substr(begin, end + last.size() + 2 - begin);
}

TEST(ScriptRunner, TheStubOfADialogThatNobodyAnsweredAnswersItWhenPasted) {
  for (const std::string command : {"QmQQGroup", "QmConfig", "QmParams", "QmBom"}) {
    const std::string asked = FailuresOf(kPump + ("run " + command));
    const std::string stub =
        LinesBetween(asked, "to answer it, write in place of line 5:", "  end\nend");
    EXPECT_EQ(stub.find("run " + command + " with\n  dialog " + command + "\n"), 0u) << asked;
    EXPECT_EQ(FailuresOf(kPump + stub), "") << stub;
  }
}

TEST(FaultOptions, AreReadAndRefusedAsTheStatementIs) {
  const struct {
    const char* option;
    const char* why;
  } cases[] = {
      {"ProMdlNameGte:2:general_error", "neither the host nor the intercepted part of Windows has"},
      {"Excel.Range.Value:2:empty", "the spreadsheet program has no member Excel.Range.Value; a"},
      {"ProMdlNameGet:0:general_error",
       "\"0\" is not a count from 1; it wants FUNCTION:NTH:STATUS"},
      {"ProMdlNameGet:2:general", "\"general\" is not a status such as general_error; it wants"},
      {"ProMdlNameGet:2", "STATUS is missing at its end; it wants"},
      {"any:1:empty:for_ever", "\"for_ever\" is one word too many; it wants"},
      {"allocation:0", "\"0\" is not a count from 1; it wants"},
      {"any:1:and:2", "STATUS is missing at its end; it wants"},
  };
  for (const auto& item : cases) {
    const std::string refusal = ErrorFrom([&] { FaultOption(item.option); });
    ExpectError(refusal, "--fault " + std::string(item.option) + ": ", item.why);
  }
  const FaultPlan plan = FaultOption("Excel.Range.Value2=:3:out_of_memory:from_then_on");
  EXPECT_EQ(plan.function, "Excel.Range.Value2=");
  EXPECT_EQ(plan.nth, 3);
  EXPECT_EQ(plan.status, -10);
  EXPECT_TRUE(plan.from_then_on);
  EXPECT_EQ(FaultOption("allocation:3:from_then_on").kind, FaultKind::kNoMemory);
  EXPECT_FALSE(FaultOption("any:5:empty").windows_too);
  const FaultPlan pair = FaultOption("crossing:5:and:7:general_error");
  EXPECT_EQ(pair.function, "");
  EXPECT_TRUE(pair.windows_too);
  EXPECT_EQ(pair.second_nth, 7);
  EXPECT_EQ(pair.status, -1);
  EXPECT_EQ(FaultOption("ProMdlNameGet:1:and:3:empty").kind, FaultKind::kEmptySuccess);
  EXPECT_TRUE(FaultOption("crossing:1:bad_inputs:from_then_on:telling_spared").spares_telling);
}

TEST(FaultOptions, ThatStrikeInNoActionFailTheScript) {
  const std::string script = std::string(kPump) + "run ForTest\nselect bolt\nrun QmMdlNameCopy\n";
  const std::string struck = FailuresOf(script + "expect faults 1\nexpect note x\n",
                                        {"--fault", "ProMdlNameGet:1:general_error"});
  EXPECT_EQ(struck.find("scripts_test.qms:9: "), 0u) << struck;
  EXPECT_EQ(
      FailuresOf(script, {"--fault", "ProMdlNameGet:9:general_error"}),
      "scripts_test.qms:7: the fault that the command line orders struck in no action of this "
      "script\n");
}

// Plug-ins that do wrong when an allocation fails lie beside this program.
std::string WrongPlugin(const char* stem) {
  return PathToUtf8(TestBinaryFolder() / (std::string("wrong_") + stem + ".dll"));
}

TEST(AllocationSweeps, TellSuccessWithoutTheWorkAndWithoutAWord) {
  const std::string failures = FailuresOf(
      "make_folder elsewhere\nsweep allocations of Wrong\nfault allocation 1\nrun Wrong\n"
      "fault allocation 2\nrun Wrong\n",
      {"--plugin", WrongPlugin("silent_memory")});
  for (const char* told :
       {"scripts_test.qms:2: fault allocation 1 (none was the last call): it answered success "
        "without its work and without a word\n",
        "scripts_test.qms:6: the fault ordered for it did not strike\n"}) {
    EXPECT_NE(failures.find(told), std::string::npos) << failures;
  }
  EXPECT_EQ(failures.find("qms:4: "), std::string::npos) << failures;
}

TEST(ScriptRunner, FailuresHaveThePathsOfTheUsersOwnMachine) {
  if (FolderSlash() != "/") GTEST_SKIP() << "Windows has no other paths than its own";
  for (const char* statement : {"import nope.stp", "expect no file bolt.prt.1", "delete nope.txt",
                                "expect workbook nope.xlsx cell A1 is empty",
                                "write \"bolt.prt.2\" x\nerase bolt\nopen bolt",
                                "run QmOpenDir\nexpect shell explorer \"{folder}\\\\nope\""}) {
    const std::string told =
        FailuresOf("part bolt\nsave bolt\nopen bolt\n" + std::string(statement));
    EXPECT_NE(told, "") << statement;
    EXPECT_EQ(told.find(":\\"), std::string::npos) << told;
  }
}

TEST(ScriptRunner, WhatFailedBeforeACrashIsToldAsWell) {
  const std::string told = FailuresOf("part bolt\nexpect parameters bolt 3\nrun Wrong\n",
                                      {"--plugin", WrongPlugin("crash")});
  EXPECT_NE(told.find("plug-in crashed in Wrong"), std::string::npos) << told;
  EXPECT_NE(told.find("scripts_test.qms:2: "), std::string::npos) << told;
}

TEST(FaultSweeps, TellWhatPluginsDoWrongWhereACallFails) {
  const struct {
    const char* plugin;
    const char* fault;
    const char* told;
  } cases[] = {
      {"swallowed_status", " at ProParameterCreate (", "work left undone without a word: "},
      {"written_twice", " at ProWindowCurrentGet (", ", without a fault "},
      {"blank_setting", " at ProMdlCurrentGet (", "notes.ini [last] model became \"\""},
      {"no_way_out", " at ProMdlCurrentGet (", "the dialog AboutQm gives the user no way out"},
  };
  for (const auto& item : cases) {
    const std::string failures =
        FailuresOf("part bolt\nparameter bolt P integer 7\nopen bolt\nsweep Wrong\n",
                   {"--plugin", WrongPlugin(item.plugin)});
    EXPECT_NE(failures.find(item.fault), std::string::npos) << failures;
    EXPECT_NE(failures.find(item.told), std::string::npos) << failures;
    EXPECT_EQ(failures.find("does not put back"), std::string::npos) << failures;
  }
}

TEST(FaultSweeps, TellFaultsAsTheStatementsThatRepeatThem) {
  const std::vector<std::string> plugin = {"--plugin", WrongPlugin("blank_setting")};
  const auto with = [&](const std::string& statements) {
    return FailuresOf("part bolt\nopen bolt\n" + statements, plugin);
  };
  const std::string told = with("sweep Wrong\n");
  const std::string fault = "fault crossing 2 status general_error";
  EXPECT_NE(told.find(":3: " + fault + " at ProMdlCurrentGet ("), std::string::npos) << told;
  EXPECT_EQ(with(fault + "\nrun Wrong\nexpect faults 1\nexpect calls ProMdlNameGet none\n"), "");
  EXPECT_EQ(with("fault crossing 2 and 3 empty\nrun Wrong\nexpect faults 2\n"), "");
  // The settings' entry, which is Windows'.
  EXPECT_EQ(with("fault crossing 4 status general_error\nrun Wrong\nexpect status general_error\n"),
            "");
  EXPECT_NE(with("fault any 4 status general_error\nrun Wrong\n").find("did not strike"),
            std::string::npos);
}

TEST(FaultSweeps, AreLargeOrSampledAsOrdered) {
  // `faults` that a sweep says it tried.
  const auto faults = [](const std::vector<std::string>& options) {
    const std::string told = FailuresOf(
        std::string(kPump) +
            "sweep QmParams with\ndialog QmParams\nset ParaName X\npress Add\nclose\nend\nend\n",
        options);
    long count = 0;
    std::sscanf(told.c_str(), "%*[^ ] sweep of QmParams: %*d calls, %ld faults, 0 bad runs",
                &count);
    return count;
  };
  const long sampled = faults({"--sampled-faults"});
  EXPECT_GT(sampled, 100);
  EXPECT_GT(faults({}), 2 * sampled);
}

TEST(FaultSweeps, CountAnExpectationInsideAsAnotherThingThatMustHold) {
  const auto with = [](const std::string& state) {
    return FailuresOf("part bolt\nopen bolt\nsweep QmVersion with\nat call 1 of any\nexpect " +
                      state + " bolt\nend\nend\n");
  };
  const std::string held = with("unmodified");
  EXPECT_EQ(held.find("expected"), std::string::npos) << held;
  EXPECT_NE(held.find(" 0 bad runs"), std::string::npos) << held;
  const std::string broken = with("modified");
  EXPECT_NE(broken.find("5: bolt, expected modified, got unmodified"), std::string::npos) << broken;
}

TEST(FirstRuns, CountAProcessThatDiesAndOneThatDoesWrong) {
  const fs::path file = fs::temp_directory_path() / "first_runs.qms";
  std::ofstream(file) << "make_folder elsewhere\nsweep allocations of Wrong\n";
  const struct {
    const char* plugin;
    const char* told;
    const char* count;
  } cases[] = {
      {"abort", "plug-in aborted in Wrong", "\n0 passed, 1 failed"},
      {"silent_memory", "allocation 1:from_then_on:", "\n1 passed, 2 failed"},
  };
  for (const auto& item : cases) {
    const std::string output =
        OutputOf(TestBinaryFolder() / "workbench.exe",
                 {"memory", PathToUtf8(file), "--plugin", WrongPlugin(item.plugin)})
            .value_or("");
    EXPECT_NE(output.find(item.told), std::string::npos) << output;
    EXPECT_NE(output.find(item.count), std::string::npos) << output;
  }
  fs::remove(file);
}

// The plug-in looks each function up once, so that in one process the first script would decide.
TEST(ScriptRunner, FunctionsAreWithheldFromOneScriptAlone) {
  const fs::path scripts = kSource / "tests" / "scripts";
  const std::string withholds = PathToUtf8(scripts / "entry" / "missing_function.qms");
  const std::string output =
      OutputOf(TestBinaryFolder() / "workbench.exe",
               {"run", withholds, PathToUtf8(scripts / "frame" / "set_directory.qms"), withholds})
          .value_or("it cannot be started");
  EXPECT_TRUE(Trimmed(output).ends_with(" passed, 0 failed")) << output;
}

TEST(ScriptRunner, NothingRunsOfAScriptWithErrors) {
  EXPECT_EQ(FailuresOf("run QmIsolate\nopne bolt\n"),
            "scripts_test.qms:2: unknown statement \"opne\"; did you mean \"open\"?\n");
}

// A program that a test starts may leave another one running, which holds its output.
TEST(OutputOfPrograms, IsTheirOwnThoughAnEarlierOneIsStillHeld) {
  const fs::path shell = "C:\\windows\\system32\\cmd.exe";
  OutputOf(shell, {"/c", "start", "/b", "ping", "-n", "3", "127.0.0.1"});
  EXPECT_NE(OutputOf(shell, {"/c", "echo", "second"}).value_or("").find("second"),
            std::string::npos);
}

}  // namespace
}  // namespace wb
