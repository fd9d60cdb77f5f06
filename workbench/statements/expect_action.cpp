// Expectations on what the last action showed and asked of Windows.
#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/script/script_runner.h"
#include "workbench/script/script_windows.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

std::string Shown(const std::vector<std::string>& texts) {
  std::vector<std::string> quoted;
  for (const std::string& text : texts) quoted.push_back(Quoted(text));
  return quoted.empty() ? "none" : Join(" ", quoted);
}

bool Contains(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::vector<std::string> Notes(const ScriptRun& run) {
  return run.host.events.TextsSince<Note>(run.marks.begin);
}

void ExpectNote(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string> notes = Notes(run);
  const std::string& text = statement.Text("TEXT");
  run.Check(statement, Contains(notes, text), "note", Quoted(text), Shown(notes));
}

void ExpectNotes(ScriptRun& run, const Statement& statement) {
  run.Check(statement, Notes(run) == statement.Texts("TEXT"), "notes",
            Shown(statement.Texts("TEXT")), Shown(Notes(run)));
}

void ExpectMessage(ScriptRun& run, const Statement& statement) {
  const auto boxes = run.host.events.Since<MessageBox>(run.marks.begin);
  const bool shown = std::any_of(boxes.begin(), boxes.end(), [&](const MessageBox& box) {
    return BoxIs(box, statement.Text("KIND"), statement.Text("TEXT"));
  });
  std::vector<std::string> got;
  for (const MessageBox& box : boxes) got.push_back(DescribeBox(box));
  run.Check(statement, shown, "message box",
            statement.Text("KIND") + " " + Quoted(statement.Text("TEXT")),
            got.empty() ? "none" : Join(", ", got));
}

void ExpectNoMessage(ScriptRun& run, const Statement& statement) {
  const auto boxes = run.host.events.Since<MessageBox>(run.marks.begin);
  run.Check(statement, boxes.empty(), "message box", "none",
            boxes.empty() ? "" : DescribeBox(boxes.front()));
}

std::vector<std::string> ShellCalls(const ScriptRun& run, const std::string& function) {
  std::vector<std::string> calls;
  for (const ShellCall& call : run.host.events.Since<ShellCall>(run.marks.begin)) {
    if (call.function != function) continue;
    calls.push_back(function == "WinExec" ? call.program : call.program + " " + call.parameters);
  }
  return calls;
}

void ExpectShell(ScriptRun& run, const Statement& statement) {
  const std::string wanted = statement.Text("PROGRAM") + " " + statement.Text("PARAMETERS");
  const std::vector<std::string> calls = ShellCalls(run, "ShellExecuteW");
  run.Check(statement, Contains(calls, wanted), "shell call", Quoted(wanted), Shown(calls));
}

void ExpectWinExec(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string> calls = ShellCalls(run, "WinExec");
  run.Check(statement, Contains(calls, statement.Text("TEXT")), "program started",
            Quoted(statement.Text("TEXT")), Shown(calls));
}

void ExpectMacro(ScriptRun& run, const Statement& statement) {
  const auto macros = run.host.events.TextsSince<QueuedMacro>(run.marks.begin);
  run.Check(statement, Contains(macros, statement.Text("TEXT")), "macro queued",
            Quoted(statement.Text("TEXT")), Shown(macros));
}

void ExpectNoShell(ScriptRun& run, const Statement& statement) {
  const size_t calls = run.host.events.Since<ShellCall>(run.marks.begin).size();
  run.Check(statement, calls == 0, "programs started", "none", std::to_string(calls));
}

void ExpectClipboard(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "clipboard", statement.Text("TEXT"),
                ClipboardText().value_or("(no text)"));
}

void ExpectTimer(ScriptRun& run, const Statement& statement) {
  std::vector<std::string> pending;
  for (const Timer& timer : run.host.windows.timers) {
    pending.push_back(std::to_string(timer.milliseconds));
  }
  if (statement.Has("no")) {
    run.Check(statement, pending.empty(), "pending timers", "none", Shown(pending));
  } else {
    const std::string wanted = std::to_string(statement.Number("N"));
    run.Check(statement, pending == std::vector<std::string>{wanted}, "pending timers", wanted,
              Shown(pending));
  }
}

// clang-format off
constexpr StatementForm kExpectActionForms[] = {
    {"expect note TEXT",                               kTopOrDialog, &ExpectNote},
    {"expect notes TEXT...",                           kTopOrDialog, &ExpectNotes},
    {"expect no note",                                 kTopOrDialog, &ExpectNotes},
    {"expect message KIND:caption|plain|warning TEXT", kTopOrDialog, &ExpectMessage},
    {"expect no message",                              kTopOrDialog, &ExpectNoMessage},
    {"expect shell PROGRAM PARAMETERS",                kTopOrDialog, &ExpectShell},
    {"expect no shell",                                kTopOrDialog, &ExpectNoShell},
    {"expect winexec TEXT",                            kTopOrDialog, &ExpectWinExec},
    {"expect macro TEXT",                              kTopOrDialog, &ExpectMacro},
    {"expect clipboard TEXT",                          kTopOrDialog, &ExpectClipboard},
    {"expect timer N",                                 kTopPlace,    &ExpectTimer},
    {"expect no timer",                                kTopPlace,    &ExpectTimer},
};
// clang-format on

}  // namespace

StatementForms ActionExpectations() {
  return kExpectActionForms;
}

}  // namespace wb
