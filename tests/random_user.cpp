// Answers by chance.
#include "tests/random_user.h"

#include <iterator>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"

namespace wb {
namespace {

constexpr size_t kMostDeeds = 5;
// A dialog that is opened out of a third one is closed at once.
constexpr int kDeepestDialog = 3;
constexpr const char* kTexts[] = {
    "",        "1",    "0",   "-2.5",   "A,B",
    "gb，iso", "bolt", "a/b", "新名称", "0123456789012345678901234567890123456789",
    "%0w",     "\t"};

const char* EventName(UiEvent event) {
  switch (event) {
    case UiEvent::kActivate:
      return kActivateEvent;
    case UiEvent::kSelect:
      return kSelectEvent;
    case UiEvent::kArm:
      return kArmEvent;
    case UiEvent::kFocusIn:
      return kFocusInEvent;
    default:
      return nullptr;
  }
}

struct Step {
  Model* model;
  int id;
};

std::vector<Step> ComponentsOf(Model& model) {
  std::vector<Step> steps;
  if (model.id.kind != ModelKind::kAssembly) return steps;
  for (Feature& feature : model.solid().features) {
    Model* const component = feature.ComponentModel();
    if (component != nullptr) steps.push_back({component, feature.id});
  }
  return steps;
}

}  // namespace

std::vector<PickedItem> RandomUser::SomeComponents() {
  std::vector<PickedItem> picks;
  Model* const root = host_.session.Current();
  if (root == nullptr) return picks;
  for (size_t wanted = 1 + Below(3); wanted > 0; --wanted) {
    PickedItem pick{0, 0, root, root, {}};
    do {
      const std::vector<Step> steps = ComponentsOf(*pick.owner);
      if (steps.empty()) break;
      const Step& step = steps[Below(steps.size())];
      pick.owner = step.model;
      pick.path.push_back(step.id);
    } while (!OneIn(2));
    pick.type = static_cast<int>(pick.owner->id.kind);
    if (!pick.path.empty()) picks.push_back(pick);
  }
  return picks;
}

void RandomUser::WorkDialog(LiveDialog& dialog) {
  ++open_dialogs_;
  const size_t deeds = open_dialogs_ < kDeepestDialog ? Below(kMostDeeds + 1) : 0;
  for (size_t i = 0; i < deeds && !dialog.ended; ++i) DoSomething(dialog);
  if (!dialog.ended) Close(dialog);
  --open_dialogs_;
}

void RandomUser::DoSomething(LiveDialog& dialog) {
  const std::vector<Field>& fields = dialog.state.Fields();
  if (fields.empty()) return;
  const Field& field = fields[Below(fields.size())];
  const UserOutcome outcome = Touch(dialog.state, field);
  const char* const event = EventName(outcome.event);
  if (!outcome.Done() || event == nullptr) return;
  dialog.Fire(outcome.target.empty() ? field.name : outcome.target, event);
}

UserOutcome RandomUser::Touch(Dialog& dialog, const Field& field) {
  if (const auto* choice = std::get_if<ChoiceState>(&field.state)) {
    const auto& names = choice->Names();
    if (names.empty()) return {};
    const std::string item = names[Below(names.size())];
    return dialog.UserSelect(field.name, {item});
  }
  if (std::holds_alternative<TextState>(field.state)) {
    return dialog.UserSetField(field.name, kTexts[Below(std::size(kTexts))]);
  }
  if (std::holds_alternative<CheckState>(field.state)) return dialog.UserToggle(field.name);
  if (const auto* table = std::get_if<TableModel>(&field.state)) {
    if (table->Rows().empty()) return {};
    const auto place = static_cast<std::ptrdiff_t>(Below(table->Rows().size()));
    const std::string row = std::next(table->Rows().begin(), place)->name;
    return OneIn(4) ? dialog.UserDoubleClick(field.name, row)
                    : dialog.UserSelect(field.name, {row});
  }
  return dialog.UserPress(field.name);
}

void RandomUser::Close(LiveDialog& dialog) {
  dialog.Fire("", kCloseEvent);
  if (!dialog.ended) dialog.Fire("Close", kActivateEvent);
  if (dialog.ended) return;
  host_.ReportBreach("ProUIDialogActivate", "the dialog " + dialog.name + " cannot be closed");
  dialog.ended = true;
}

std::optional<std::vector<PickedItem>> RandomUser::Pick(const PickRequest& request) {
  if (OneIn(3)) return std::nullopt;
  std::vector<PickedItem> picks;
  for (const PickedItem& pick : SomeComponents()) {
    const bool is_part = pick.owner->id.kind == ModelKind::kPart;
    const bool is_wanted = request.filter.find("prt_or_asm") != std::string::npos ||
                           request.filter.find(is_part ? "part" : "assembly") != std::string::npos;
    if (is_wanted) picks.push_back(pick);
  }
  if (request.max_count > 0 && picks.size() > static_cast<size_t>(request.max_count)) {
    picks.resize(static_cast<size_t>(request.max_count));
  }
  if (picks.empty()) return std::nullopt;
  return picks;
}

std::optional<std::string> RandomUser::ChooseFile(const FileRequest& request) {
  if (OneIn(2)) return std::nullopt;
  const std::filesystem::path& folder = host_.session.working_directory();
  if (request.asked_by.find("Directory") != std::string::npos) return PathToUtf8(folder);
  return PathToUtf8(folder / ("chosen" + std::to_string(Below(3)) + ".xlsx"));
}

std::optional<std::string> RandomUser::AnswerPrompt(const std::string&, int) {
  if (OneIn(3)) return std::nullopt;
  return kTexts[Below(std::size(kTexts))];
}

int RandomUser::AnswerMessageBox(const MessageBox& box) {
  const bool yes = OneIn(2);
  switch (box.style & MB_TYPEMASK) {
    case MB_YESNO:
    case MB_YESNOCANCEL:
      return yes ? IDYES : IDNO;
    case MB_OKCANCEL:
      return yes ? IDOK : IDCANCEL;
    default:
      return IDOK;
  }
}

}  // namespace wb
