// Deeds of the scripted user, one after another, and what is left over of them.
#include "workbench/script/script_user.h"

#include "workbench/dialog/dialog_html.h"
#include "workbench/dialog/dialog_text.h"
#include "workbench/script/dialog_stub.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

std::string Indented(const std::string& lines) {
  std::string text;
  for (size_t at = 0; at < lines.size();) {
    const size_t end = std::min(lines.find('\n', at), lines.size() - 1) + 1;
    text += "  " + lines.substr(at, end - at);
    at = end;
  }
  return text;
}

}  // namespace

void ScriptUser::Answering(const Statement& asked_at, const std::vector<Statement>& answers,
                           const std::function<void()>& action) {
  levels_.push_back({&asked_at, &answers, true});
  action();
  EndLevel();
}

void ScriptUser::EndLevel() {
  const Level level = levels_.back();
  levels_.pop_back();
  const std::vector<ScriptMoments::Missed> all_missed = moments_.Forget(levels_.size());
  if (run_.lenient) return;
  ReportUnused(level);
  for (const ScriptMoments::Missed& missed : all_missed) ReportMissed(missed);
}

void ScriptUser::ReportUnused(const Level& level) {
  const bool in_dialog = level.opened_at->form->block == kDialogPlace;
  const std::string why = std::string("not used, since the ") + (in_dialog ? "dialog" : "command") +
                          " had ended before";
  for (size_t i = level.next; i < level.statements->size(); ++i) {
    const Statement& left = (*level.statements)[i];
    run_.Fail(left, why + ": " + left.text);
  }
}

void ScriptUser::ReportMissed(const ScriptMoments::Missed& missed) {
  const std::string came =
      missed.calls == 0 ? "no call" : std::to_string(missed.calls) + " of them";
  run_.Fail(missed.statement, "never came: " + missed.statement.text + " (" + came + ")");
}

// Those that stand next among answers count from here on.
void ScriptUser::AwaitNext() {
  if (levels_.empty() || !levels_.back().of_answers) return;
  const std::vector<Statement>& statements = *levels_.back().statements;
  for (size_t& next = levels_.back().next; next < statements.size() && statements[next].Is("at");) {
    ExecuteGuarded(statements[next++]);
  }
}

// What the call was made for goes on with whatever the user has changed by then.
bool ScriptUser::CallBegins(const char* function) {
  AwaitNext();
  const std::vector<Statement> reached = moments_.Reached(function);
  for (const Statement& statement : reached) {
    const bool open = !dialogs_.empty() && !dialogs_.back()->ended;
    Perform(statement, statement.block, open ? dialogs_.back() : nullptr);
  }
  return !reached.empty();
}

const Statement& ScriptUser::Place() const {
  static const StatementForm kNowhere{"", 0, kWhenAsked};
  static const Statement nowhere{&kNowhere, "script", 0, "", {}, {}};
  if (levels_.empty()) return nowhere;
  const Level& level = levels_.back();
  return level.next < level.statements->size() ? (*level.statements)[level.next] : *level.opened_at;
}

const Statement* ScriptUser::Take(const char* word) {
  if (levels_.empty()) return nullptr;
  Level& level = levels_.back();
  for (size_t at = level.next; at < level.statements->size(); ++at) {
    const Statement& next = (*level.statements)[at];
    if (next.Is(word)) {
      level.next = at + 1;
      return &next;
    }
    // Under faults the plug-in may never come to ask for what stands next.
    if (!run_.lenient) break;
  }
  return nullptr;
}

void ScriptUser::Unanswered(const std::string& what) {
  if (!run_.lenient) run_.Fail(Place(), what);
}

LiveDialog& ScriptUser::dialog() const {
  if (dialogs_.empty() || dialogs_.back()->ended) throw ScriptError("no dialog is open");
  return *dialogs_.back();
}

void ScriptUser::Fire(LiveDialog& dialog, const std::string& component, const std::string& event) {
  if (event == kActivateEvent || event == kCloseEvent) {
    NoteDialog(dialog);
    KeepShown(dialog);
  }
  const bool bound = dialog.Fire(component, event);
  if (bound || run_.lenient) return;
  if (component.empty()) run_.Fail(Place(), "dialog " + dialog.name + " has no close action");
  Field* button = nullptr;
  if (dialog.state.Find(FieldKind::kPushButton, component, &button) == UiStatus::kOk) {
    run_.Fail(Place(), "nothing is bound to " + component + " of dialog " + dialog.name);
  }
}

void ScriptUser::KeepShown(const LiveDialog& dialog) {
  if (run_.lenient) shown_.push_back(dialog.name + "\n" + DescribeTables(dialog.state));
}

namespace {

// What a dialog is closed by. A binding that only claims to have succeeded cannot be known by the
// plug-in, nor can anybody close a dialog that the host will not end.
bool HostPreventsClosing(const Faults& faults) {
  return faults.HasStruck("ProUIDialogExit") ||
         (faults.claims_success() && (faults.HasStruck("ProUIDialogCloseActionSet") ||
                                      faults.HasStruck("ProUIPushbuttonActivateActionSet")));
}

}  // namespace

// A user who is at a loss closes the window, and presses the button that says so; a dialog that
// does not close then is ended by force, so that no run hangs.
void ScriptUser::CloseForUser(LiveDialog& dialog) {
  dialog.Fire("", kCloseEvent);
  if (!dialog.ended) dialog.Fire("Close", kActivateEvent);
  if (!dialog.ended && !HostPreventsClosing(run_.host.faults)) {
    run_.host.ReportBreach("ProUIDialogActivate",
                           "the dialog " + dialog.name + " gives the user no way out");
  }
  dialog.ended = true;
}

// No exception may pass through the plug-in, which waits for this answer.
void ScriptUser::ExecuteGuarded(const Statement& statement) {
  try {
    if (statement.form->action != kWhenAsked) {
      run_.Execute(statement);
    } else if (!run_.lenient) {
      run_.Fail(statement, "nothing asked for this answer");
    }
  } catch (const std::exception& error) {
    if (!run_.lenient) run_.Fail(statement, error.what());
  }
}

void ScriptUser::Perform(const Statement& opened_at, const std::vector<Statement>& statements,
                         const LiveDialog* dialog) {
  levels_.push_back({&opened_at, &statements});
  const size_t depth = levels_.size();
  while (levels_[depth - 1].next < statements.size() && !(dialog != nullptr && dialog->ended)) {
    const Statement& statement = statements[levels_[depth - 1].next++];
    ExecuteGuarded(statement);
  }
  EndLevel();
}

void ScriptUser::WorkDialog(LiveDialog& dialog) {
  const Statement* const answer = Take("dialog");
  if (answer == nullptr || answer->Text("NAME") != dialog.name) {
    NoteDialog(dialog, "nobody answered it");
    Unanswered("dialog " + dialog.name + " opened and nobody answers it; it has\n" +
               DescribeFields(dialog.state) + HowToAnswer(dialog));
    CloseForUser(dialog);
    return;
  }
  dialogs_.push_back(&dialog);
  Perform(*answer, answer->block, &dialog);
  if (!dialog.ended) {
    NoteDialog(dialog, "still open after the last answer");
    if (!run_.lenient) {
      run_.Fail(*answer, "dialog " + dialog.name +
                             " is still open after the last answer; it has\n" +
                             DescribeFields(dialog.state) +
                             "to go on with it, put some of these lines before its \"end\":\n" +
                             DialogStub(dialog));
    }
    CloseForUser(dialog);
  }
  dialogs_.pop_back();
}

// The statement that is being carried out, with its line; empty outside of them.
std::string ScriptUser::Deed() const {
  if (levels_.empty() || levels_.back().next == 0) return {};
  const Statement& statement = (*levels_.back().statements)[levels_.back().next - 1];
  return "line " + std::to_string(statement.line) + ": " + statement.text;
}

// The stub of an answer, and where in the script it belongs.
std::string ScriptUser::HowToAnswer(const LiveDialog& dialog) const {
  if (levels_.empty()) return {};
  const Level& level = levels_.back();
  const Statement& asked_at = *level.opened_at;
  const std::string stub = DialogStub(dialog);
  if (asked_at.Is("run") && asked_at.block.empty()) {
    return "to answer it, write in place of line " + std::to_string(asked_at.line) + ":\nrun " +
           asked_at.Text("COMMAND") + " with\n" + Indented(stub) + "end\n";
  }
  const int line = level.next == 0 ? asked_at.line : (*level.statements)[level.next - 1].line;
  return "to answer it, put below line " + std::to_string(line) + ":\n" + stub;
}

// As it looked before each press, or when it was left alone with `trouble`; a dialog that looks as
// before is not drawn again.
void ScriptUser::NoteDialog(const LiveDialog& dialog, const std::string& trouble) {
  if (noting_ == nullptr) return;
  const std::string html = DrawDialog(dialog.state);
  const bool as_before = !noting_->dialogs.empty() && noting_->dialogs.back().html == html;
  if (as_before && trouble.empty()) return;
  noting_->dialogs.push_back({dialog.name, trouble.empty() ? Deed() : "", html, trouble});
}

}  // namespace wb
