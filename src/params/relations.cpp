// QmRelations: the typed lines are appended to the relations of every model of the chosen class,
// appended where they are missing, or put in their place.
#include "params/relations.h"

#include "frame/dialogs/dialog.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "params/model_targets.h"
#include "params/relation_rules.h"
#include "params/relation_set.h"

namespace qm {
namespace {

struct ButtonRow {
  const char* button;
  RelationAction action;
  const wchar_t* done;
};
constexpr ButtonRow kAddRels = {"AddRels", RelationAction::kAppend, L"\t批量关系创建操作已完成\t"};
constexpr ButtonRow kAddRelsAndNoRepeat = {"AddRelsAndNoRepeat", RelationAction::kAppendMissing,
                                           L"\t批量关系追加操作已完成\t"};
constexpr ButtonRow kCoverRels = {"CoverRels", RelationAction::kCover,
                                  L"\t批量关系覆盖操作已完成\t"};

// What the user wants, as the fields say it; nothing where one cannot be read.
struct RelationWishes {
  std::string class_name;
  std::optional<std::string> set;
  std::optional<std::wstring> text;
  std::optional<std::wstring> keyword_list;
};

struct RelationPlan {
  RelationAction action;
  RelationKind kind;
  RelationLines lines;
  std::vector<ModelTarget> targets;
  long long left_out;
};

RelationWishes AskWishes(const DialogView& dialog) {
  return {dialog.TryRadioValue("TypeRadio").value_or(std::string()),
          dialog.TryRadioValue("OptionRadio"), dialog.TryTextAreaValue("RelTxtarea"),
          dialog.TryInputValue("InputKeyWords")};
}

// Nothing, after the message, when there is nothing to plan. A text that cannot be read is no empty
// one, by which relations would be covered with nothing.
std::optional<RelationPlan> MakePlan(const RelationWishes& wishes, RelationAction action,
                                     RelationKind kind) {
  const auto top = CurrentModelOrAssembly();
  if (wishes.class_name.empty()) {
    ShowShortMessage(kUnreadableField);
    return std::nullopt;
  }
  const auto found = FindTargets(top, wishes.class_name);
  if (!found) return std::nullopt;
  if (!wishes.text || !wishes.keyword_list) {
    ShowShortMessage(kUnreadableField);
    return std::nullopt;
  }
  const KeywordFilter keywords(*wishes.keyword_list);
  RelationPlan plan{action, kind, SplitRelations(*wishes.text), {}, found->left_out};
  for (const ProMdl model : found->models) {
    auto target = ReadTarget(model, keywords, &plan.left_out);
    if (target) plan.targets.push_back(std::move(*target));
  }
  LogCount("components", found->component_count);
  LogCount("models", static_cast<long long>(found->models.size()));
  return plan;
}

struct SetToWrite {
  std::optional<ProRelset> set;
  bool is_new = false;
};

// For an append on an ordinary set one is made where there is none. Deliberately none is made in
// the place of a set of the other kind, nor to be covered: only what was chosen may change.
SetToWrite FindSet(const ModelTarget& target, const RelationPlan& plan) {
  auto set = OpenRelations(target, plan.kind);
  if (set || plan.kind == RelationKind::kPostRegeneration) return {set, false};
  if (plan.action != RelationAction::kCover) return {CreateRelations(target), true};
  LogFailure(target.name, "ProModelitemToRelset", PRO_TK_E_NOT_FOUND);
  return {};
}

// False, after a line in the log, when the model keeps what it has. Deliberately a set whose lines
// cannot be read is not written: an append would wipe them. A new set has no lines to be read.
bool ApplyTo(const ModelTarget& target, const RelationPlan& plan) {
  auto [set, is_new] = FindSet(target, plan);
  if (!set) return false;
  RelationLines present;
  if (plan.action != RelationAction::kCover && !is_new) {
    auto read = ReadRelations(target, &*set);
    if (!read) return false;
    present = std::move(*read);
  }
  return WriteRelations(target, &*set, RelationsAfter(plan.action, present, plan.lines));
}

void Run(const DialogView& dialog, const ButtonRow& row) {
  CommandLog log(row.button);
  const RelationWishes wishes = AskWishes(dialog);
  if (!wishes.set) return ShowShortMessage(kUnreadableField);
  const auto kind = RelationKindOf(*wishes.set);
  if (!kind) return LogOutcome("nothing done, no set of relations chosen");
  const auto plan = MakePlan(wishes, row.action, *kind);
  if (!plan) return;
  long long written = 0;
  for (const ModelTarget& target : plan->targets) written += ApplyTo(target, *plan) ? 1 : 0;
  LogCount("worked on", written);
  RefreshModelTree();
  NoteLeftOut(plan->left_out);
  ShowMessage(row.done);
}

void Bind(const Dialog& dialog) {
  for (const ButtonRow* row : {&kAddRels, &kAddRelsAndNoRepeat, &kCoverRels}) {
    dialog.BindButton<&Run>(row->button, *row);
  }
  dialog.BindCloseButton();
  dialog.BindClose();
}

}  // namespace

ProError QmRelations() {
  return RunDialog("Relations", [](const Dialog& dialog) {
    Bind(dialog);
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
