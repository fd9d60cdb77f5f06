// Answers of the scripted user.
#include "workbench/script_user.h"

#include <algorithm>

#include "workbench/dialog_html.h"
#include "workbench/model_file.h"
#include "workbench/script_paths.h"
#include "workbench/script_runner.h"
#include "workbench/text.h"

namespace wb {
namespace {

// The kinds of message box that users of the plug-in tell apart.
constexpr const char* kCaption = "羽石工具箱";
constexpr unsigned kTopmostStyle = 0x40000;
constexpr unsigned kButtonsOnlyStyle = 0;
constexpr unsigned kExclamationStyle = 0x30;

struct ButtonRow {
  const char* word;
  int id;
};
constexpr ButtonRow kButtons[] = {{"ok", 1}, {"cancel", 2}, {"yes", 6}, {"no", 7}};
constexpr int kOkButton = 1;

int ButtonId(const std::string& word) {
  for (const ButtonRow& row : kButtons) {
    if (word == row.word) return row.id;
  }
  return kOkButton;
}

// The plain box has no icon, the warning an exclamation mark.
bool IsKind(const MessageBox& box, const std::string& kind) {
  if (kind == "caption") return box.style == kTopmostStyle && box.caption == kCaption;
  const unsigned style = kind == "plain" ? kButtonsOnlyStyle : kExclamationStyle;
  return box.style == style && box.caption != kCaption;
}

}  // namespace

std::string DescribeBox(const MessageBox& box) {
  for (const char* const kind : {"caption", "plain", "warning"}) {
    if (IsKind(box, kind)) return std::string(kind) + " " + Quoted(box.text);
  }
  return "other " + Quoted(box.text) + " (style " + std::to_string(box.style) + ", caption " +
         Quoted(box.caption) + ")";
}

bool BoxIs(const MessageBox& box, const std::string& kind, const std::string& text) {
  return IsKind(box, kind) && box.text == text;
}

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
  for (size_t& next = levels_.back().next;
       next < statements.size() && statements[next].Is("at_call");) {
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
  static const StatementForm kNowhere{"", "", 0};
  static const Statement nowhere{&kNowhere, "script", 0, "", {}, {}};
  if (levels_.empty()) return nowhere;
  const Level& level = levels_.back();
  return level.next < level.statements->size() ? (*level.statements)[level.next] : *level.opened_at;
}

const Statement* ScriptUser::Take(std::initializer_list<const char*> forms) {
  if (levels_.empty()) return nullptr;
  Level& level = levels_.back();
  for (size_t at = level.next; at < level.statements->size(); ++at) {
    const Statement& next = (*level.statements)[at];
    const auto is_next = [&](const char* form) { return next.Is(form); };
    if (std::any_of(forms.begin(), forms.end(), is_next)) {
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
  if (event == kActivateEvent || event == kCloseEvent) NoteDialog(dialog);
  const bool bound = dialog.Fire(component, event);
  if (bound || run_.lenient) return;
  if (component.empty()) run_.Fail(Place(), "dialog " + dialog.name + " has no close action");
  Component* button = nullptr;
  if (dialog.state.Find(ComponentKind::kPushButton, component, &button) == UiStatus::kOk) {
    run_.Fail(Place(), "nothing is bound to " + component + " of dialog " + dialog.name);
  }
}

// A user who is at a loss closes the window; a dialog that does not close then is ended by force,
// so that no run hangs.
void ScriptUser::CloseForUser(LiveDialog& dialog) {
  dialog.Fire("", kCloseEvent);
  dialog.ended = true;
}

// No exception may pass through the plug-in, which waits for this answer.
void ScriptUser::ExecuteGuarded(const Statement& statement) {
  try {
    if (FindScriptAction(*statement.form) != nullptr) {
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
  const Statement* const answer = Take({"dialog"});
  if (answer == nullptr || answer->Text("NAME") != dialog.name) {
    Unanswered("dialog " + dialog.name + " opened and nobody answers it; it has\n" +
               dialog.state.DescribeComponents());
    CloseForUser(dialog);
    return;
  }
  dialogs_.push_back(&dialog);
  Perform(*answer, answer->block, &dialog);
  if (!dialog.ended) {
    if (!run_.lenient) {
      run_.Fail(*answer, "dialog " + dialog.name +
                             " is still open after the last answer; it has\n" +
                             dialog.state.DescribeComponents());
    }
    CloseForUser(dialog);
  }
  dialogs_.pop_back();
}

std::optional<std::vector<PickedItem>> ScriptUser::AnswerPick(const PickRequest& request) {
  const Statement* const answer = Take({"pick", "pick_item", "pick_cancel"});
  if (answer == nullptr) {
    Unanswered("a pick of " + request.filter + " (at most " + std::to_string(request.max_count) +
               ") was asked for and nobody answers");
    return std::nullopt;
  }
  if (answer->Is("pick_cancel")) return std::nullopt;
  try {
    return PicksOf(run_, *answer);
  } catch (const std::runtime_error& error) {
    run_.Fail(*answer, error.what());
    return std::nullopt;
  }
}

// As it looked before each press; a dialog that looks as before is not drawn again.
void ScriptUser::NoteDialog(const LiveDialog& dialog) {
  if (noting_ == nullptr) return;
  const std::string html = DrawDialog(dialog.state);
  if (!noting_->dialogs.empty() && noting_->dialogs.back().html == html) return;
  noting_->dialogs.push_back({dialog.name, html});
}

void ScriptUser::NoteQuestion(const char* kind, const std::string& asked,
                              const std::optional<std::string>& answer) {
  if (noting_ != nullptr) noting_->questions.push_back({kind, asked, answer});
}

void ScriptUser::CheckFileRequest(const Statement& answer, const FileRequest& request) {
  const struct {
    const char* name;
    const std::string& got;
  } facts[] = {
      {"title", request.title}, {"filter", request.filter}, {"folder", request.start_folder}};
  for (const auto& fact : facts) {
    if (!answer.Has(fact.name)) continue;
    std::string argument = fact.name;
    for (char& c : argument) c = static_cast<char>(c - 'a' + 'A');
    run_.CheckText(answer, std::string("file choice ") + fact.name, answer.Text(argument),
                   fact.got);
  }
}

std::optional<std::string> ScriptUser::AnswerFile(const FileRequest& request) {
  const Statement* const answer = Take({"file", "file_cancel"});
  if (answer == nullptr) {
    Unanswered("a file was asked for by " + request.asked_by + " (title " + Quoted(request.title) +
               ", filter " + Quoted(request.filter) + ", folder " + Quoted(request.start_folder) +
               ") and nobody answers");
    return std::nullopt;
  }
  if (!run_.lenient) CheckFileRequest(*answer, request);
  if (answer->Is("file_cancel")) return std::nullopt;
  return answer->Text("PATH");
}

std::optional<std::string> ScriptUser::AnswerText(const std::string& prompt, int max_length) {
  const Statement* const answer = Take({"prompt", "prompt_cancel"});
  if (answer == nullptr) {
    Unanswered("the prompt " + Quoted(prompt) + " (at most " + std::to_string(max_length) +
               " characters) was shown and nobody answers");
    return std::nullopt;
  }
  if (answer->Has("asks") && !run_.lenient) {
    run_.CheckText(*answer, "prompt", answer->Text("PROMPT"), prompt);
  }
  if (answer->Is("prompt_cancel")) return std::nullopt;
  return answer->Text("TEXT");
}

int ScriptUser::PressedButton(const MessageBox& box) {
  const Statement* const answer = Take({"message", "message_while"});
  if (answer == nullptr) {
    Unanswered("message box that the script does not name: " + DescribeBox(box));
    return kOkButton;
  }
  const std::string& kind = answer->Text("KIND");
  if (!run_.lenient) {
    run_.Check(*answer, BoxIs(box, kind, answer->Text("TEXT")), "message box",
               kind + " " + Quoted(answer->Text("TEXT")), DescribeBox(box));
  }
  if (answer->Is("message_while")) {
    Perform(*answer, answer->block, dialogs_.empty() ? nullptr : dialogs_.back());
  }
  return ButtonId(answer->Text("BUTTON"));
}

std::optional<std::vector<PickedItem>> ScriptUser::Pick(const PickRequest& request) {
  const auto picks = AnswerPick(request);
  std::vector<std::string> names;
  for (const PickedItem& pick : picks.value_or(std::vector<PickedItem>())) {
    names.push_back(DescribePick(pick));
  }
  NoteQuestion("pick", request.filter, picks ? std::optional(Join(" ", names)) : std::nullopt);
  return picks;
}

std::optional<std::string> ScriptUser::ChooseFile(const FileRequest& request) {
  const auto file = AnswerFile(request);
  NoteQuestion("file", request.title, file);
  return file;
}

std::optional<std::string> ScriptUser::AnswerPrompt(const std::string& prompt, int max_length) {
  const auto text = AnswerText(prompt, max_length);
  NoteQuestion("prompt", prompt, text);
  return text;
}

int ScriptUser::AnswerMessageBox(const MessageBox& box) {
  const int button = PressedButton(box);
  if (noting_ != nullptr) noting_->boxes.push_back({box, button});
  return button;
}

}  // namespace wb
