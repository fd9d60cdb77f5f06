// Answers of the scripted user: dialogs, picks, files, prompts and message boxes.
#include "workbench/base/text.h"
#include "workbench/reasons/own_path.h"
#include "workbench/script/script_calls.h"
#include "workbench/script/script_paths.h"
#include "workbench/script/script_runner.h"

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

bool BoxBegins(const MessageBox& box, const std::string& kind, const std::string& text) {
  return IsKind(box, kind) && box.text.starts_with(text);
}

void AwaitCall(ScriptRun& run, const Statement& statement) {
  CheckFunctions(statement);
  run.user.Await(statement);
}

#define WB_MESSAGE \
  "message KIND:caption|plain|warning [begins] TEXT [answer BUTTON:ok|cancel|yes|no]"
#define WB_REQUEST "{[title TITLE] [filter FILTER] [folder FOLDER] [offers OFFERS]}"

// clang-format off
constexpr StatementForm kAnswerForms[] = {
    {"dialog NAME",                          kAnswerOrDialog, kWhenAsked, kDialogPlace},
    {WB_MESSAGE " while",                    kAnswerOrDialog, kWhenAsked, kDialogPlace},
    {WB_MESSAGE,                             kAnswerOrDialog, kWhenAsked},
    {"pick cancel",                          kAnswerOrDialog, kWhenAsked},
    {"pick item ITEM ID of MODEL [at PATH]", kAnswerOrDialog, kWhenAsked},
    {"pick items ITEM of MODEL IDS...",      kAnswerOrDialog, kWhenAsked},
    {"pick PATH...",                         kAnswerOrDialog, kWhenAsked},
    {"file cancel " WB_REQUEST,              kAnswerOrDialog, kWhenAsked},
    {"file PATH " WB_REQUEST,                kAnswerOrDialog, kWhenAsked},
    {"prompt cancel [asks PROMPT]",          kAnswerOrDialog, kWhenAsked},
    {"prompt TEXT [asks PROMPT]",            kAnswerOrDialog, kWhenAsked},
    {"macro TEXT",                           kAnswerOrDialog, kWhenAsked},
    {"placement cancel",                     kAnswerOrDialog, kWhenAsked},
    {"placement fix",                        kAnswerOrDialog, kWhenAsked},
    {"placement at X Y Z",                   kAnswerOrDialog, kWhenAsked},
    {"at call NTH of FUNCTION",              kAnswerOrDialog, &AwaitCall, kDialogPlace},
};
// clang-format on

#undef WB_MESSAGE
#undef WB_REQUEST

}  // namespace

StatementForms AnswerStatements() {
  return kAnswerForms;
}

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

std::optional<std::vector<PickedItem>> ScriptUser::AnswerPick(const PickRequest& request) {
  const Statement* const answer = Take("pick");
  if (answer == nullptr) {
    Unanswered("a pick of " + request.filter + " (at most " + std::to_string(request.max_count) +
               ") was asked for and nobody answers");
    return std::nullopt;
  }
  if (answer->Has("cancel")) return std::nullopt;
  try {
    return PicksOf(run_, *answer);
  } catch (const std::runtime_error& error) {
    run_.Fail(*answer, error.what());
    return std::nullopt;
  }
}

void ScriptUser::NoteQuestion(const char* kind, const std::string& asked,
                              const std::optional<std::string>& answer) {
  if (noting_ != nullptr) noting_->questions.push_back({kind, asked, answer});
  if (run_.lenient) asked_.push_back(std::string(kind) + " " + asked);
}

void ScriptUser::CheckFileRequest(const Statement& answer, const FileRequest& request) {
  const struct {
    const char* name;
    const std::string& got;
  } facts[] = {{"title", request.title},
               {"filter", request.filter},
               {"folder", request.start_folder},
               {"offers", request.offered_name}};
  for (const auto& fact : facts) {
    if (!answer.Has(fact.name)) continue;
    std::string argument = fact.name;
    for (char& c : argument) c = static_cast<char>(c - 'a' + 'A');
    run_.CheckText(answer, std::string("file choice ") + fact.name, answer.Text(argument),
                   fact.got);
  }
}

std::optional<std::string> ScriptUser::AnswerFile(const FileRequest& request) {
  const Statement* const answer = Take("file");
  if (answer == nullptr) {
    Unanswered("a file was asked for by " + request.asked_by + " (title " + Quoted(request.title) +
               ", filter " + Quoted(request.filter) + ", folder " + Quoted(request.start_folder) +
               ") and nobody answers");
    return std::nullopt;
  }
  if (!run_.lenient) CheckFileRequest(*answer, request);
  if (answer->Has("cancel")) return std::nullopt;
  return answer->Text("PATH");
}

std::optional<std::string> ScriptUser::AnswerText(const std::string& prompt, int max_length) {
  const Statement* const answer = Take("prompt");
  if (answer == nullptr) {
    Unanswered("the prompt " + Quoted(prompt) + " (at most " + std::to_string(max_length) +
               " characters) was shown and nobody answers");
    return std::nullopt;
  }
  if (answer->Has("asks") && !run_.lenient) {
    run_.CheckText(*answer, "prompt", answer->Text("PROMPT"), prompt);
  }
  if (answer->Has("cancel")) return std::nullopt;
  return answer->Text("TEXT");
}

bool ScriptUser::LeavesMacro(const std::string& macro) {
  const Statement* const answer = Take("macro");
  if (answer == nullptr) return false;
  if (!run_.lenient) run_.CheckText(*answer, "macro", answer->Text("TEXT"), macro);
  return true;
}

std::optional<PlacementAnswer> ScriptUser::AnswerPlacement(const PlacementRequest& request) {
  const Statement* const answer = Take("placement");
  if (answer == nullptr) {
    Unanswered("the placement of " + request.component + " in " + request.assembly +
               " was asked for and nobody answers");
    return std::nullopt;
  }
  if (answer->Has("cancel")) return std::nullopt;
  if (answer->Has("fix")) return PlacementAnswer{};
  return PlacementAnswer{Point{answer->Decimal("X"), answer->Decimal("Y"), answer->Decimal("Z")}};
}

void ScriptUser::CheckBox(const Statement& answer, const MessageBox& box) {
  const std::string& kind = answer.Text("KIND");
  const std::string& text = answer.Text("TEXT");
  const bool begins = answer.Has("begins");
  run_.Check(answer, begins ? BoxBegins(box, kind, text) : BoxIs(box, kind, text), "message box",
             kind + (begins ? " that begins " : " ") + Quoted(text), DescribeBox(box));
}

int ScriptUser::PressedButton(const MessageBox& box) {
  const Statement* const answer = Take("message");
  if (answer == nullptr) {
    Unanswered("message box that the script does not name: " + DescribeBox(box));
    return kOkButton;
  }
  if (!run_.lenient) CheckBox(*answer, box);
  if (answer->Has("while")) {
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
  NoteQuestion("file", request.title, file ? std::optional(WithOwnPath(*file)) : std::nullopt);
  return file;
}

std::optional<std::string> ScriptUser::AnswerPrompt(const std::string& prompt, int max_length) {
  const auto text = AnswerText(prompt, max_length);
  NoteQuestion("prompt", prompt, text);
  return text;
}

std::optional<PlacementAnswer> ScriptUser::PlaceComponent(const PlacementRequest& request) {
  const auto answer = AnswerPlacement(request);
  std::optional<std::string> text;
  if (answer && !answer->at) text = "fixed";
  if (answer && answer->at) {
    const Point& at = *answer->at;
    text = "at " + NumberText(at[0]) + " " + NumberText(at[1]) + " " + NumberText(at[2]);
  }
  NoteQuestion("placement", request.component + " in " + request.assembly, text);
  return answer;
}

int ScriptUser::AnswerMessageBox(const MessageBox& box) {
  const int button = PressedButton(box);
  if (noting_ != nullptr) noting_->boxes.push_back({box, button});
  return button;
}

}  // namespace wb
