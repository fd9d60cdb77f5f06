// Reads the macro step by step, and replaces the component at its end.
#include "workbench/plugin/replace_macro.h"

#include <algorithm>
#include <vector>

#include "workbench/base/text.h"
#include "workbench/session/model_cycle.h"

namespace wb {
namespace {

// "~ Select `dialog` `button`": what stands before the first name, and the names.
struct ReplaceStep {
  std::string text;
  std::string action;
  std::vector<std::string> names;
};

ReplaceStep StepOf(const std::string& text) {
  ReplaceStep step{text, "", {}};
  const size_t quote = std::min(text.find('`'), text.size());
  step.action = Trimmed(text.substr(0, quote));
  for (size_t at = quote; at < text.size();) {
    const size_t end = std::min(text.find('`', at + 1), text.size());
    step.names.push_back(text.substr(at + 1, end - at - 1));
    at = std::min(text.find('`', end + 1), text.size());
  }
  return step;
}

// No name in such a macro holds a semicolon.
std::vector<ReplaceStep> StepsOf(std::string_view macro) {
  std::vector<ReplaceStep> steps;
  for (size_t at = 0; at < macro.size();) {
    const size_t end = std::min(macro.find(';', at), macro.size());
    const std::string text = Trimmed(std::string(macro.substr(at, end - at)));
    if (!text.empty()) steps.push_back(StepOf(text));
    at = end + 1;
  }
  return steps;
}

// How far the dialog has come; each step wants the one before.
enum class Stage { kClosed, kOpen, kUnrelated, kChoosing, kInWorkingDirectory, kChosen, kDone };

struct StageRow {
  const char* action;
  const char* first;   // names of the step; null: any
  const char* second;  // the rest of the names is the choice
  Stage wants;
  Stage then;
};
// clang-format off
constexpr StageRow kStages[] = {
    {"~ Command",  "ProCmdReplace",                          nullptr,                      Stage::kClosed,             Stage::kOpen},
    {"~ Command",  "ProCmdReplComp@PopupMenuGraphicWinStack", nullptr,                     Stage::kClosed,             Stage::kOpen},
    {"~ Select",   "gen_repl_dlg",                           "ByCompPH.rpl_method_radio",  Stage::kOpen,               Stage::kUnrelated},
    {"~ Activate", "gen_repl_dlg",                           "PB_NewComp",                 Stage::kUnrelated,          Stage::kChoosing},
    {"~ Activate", "file_open",                              "Current Dir",                Stage::kChoosing,           Stage::kInWorkingDirectory},
    {"~ Activate", "file_open",                              "Ph_list.Filelist",           Stage::kInWorkingDirectory, Stage::kChosen},
    {"~ Activate", "gen_repl_dlg",                           "DoneBtn",                    Stage::kChosen,             Stage::kDone},
};
// clang-format on

bool Fits(const ReplaceStep& step, const StageRow& row) {
  if (step.action != row.action || step.names.empty() || step.names[0] != row.first) return false;
  return row.second == nullptr || (step.names.size() > 1 && step.names[1] == row.second);
}

// What only records where the mouse was.
bool IsWithoutEffect(const ReplaceStep& step) {
  const bool opens_popup =
      step.action == "~" && !step.names.empty() && step.names[0] == "rmb_popup";
  return opens_popup || step.action == "~ Trail" || step.action.empty();
}

// The feature that places the one selected component; null: none is selected.
Feature* SelectedComponent(Session& session, Model** owner) {
  if (session.selection_buffer.size() != 1) return nullptr;
  const PickedItem& pick = session.selection_buffer.front();
  Model* at = pick.root;
  Feature* feature = nullptr;
  for (const int id : pick.path) {
    if (at == nullptr) return nullptr;
    *owner = at;
    feature = at->FindFeature(id);
    at = feature != nullptr ? feature->ComponentModel() : nullptr;
  }
  return feature;
}

std::string Replace(const std::string& file, Session& session) {
  Model* owner = nullptr;
  Feature* const feature = SelectedComponent(session, &owner);
  if (feature == nullptr) return "no component is selected";
  const auto name = ParseModelName(file);
  const bool is_listed = name && file == FoldCase(file) &&
                         !FolderIndex(session.working_directory()).Newest(*name).empty();
  if (!is_listed) return "the list of files has no " + file;
  Model* const model = session.Retrieve(*name);
  const ModelLink before = feature->component->link;
  feature->component->link = {model->id, model};
  if (!FindCycle({owner}).empty()) {
    feature->component->link = before;
    return owner->id.Text() + " would hold itself";
  }
  feature->constraints.clear();
  owner->modified = true;
  session.selection_buffer.clear();
  return "";
}

}  // namespace

bool IsReplaceMacro(std::string_view macro) {
  return macro.find("`gen_repl_dlg`") != macro.npos;
}

PlayedReplacement PlayReplaceMacro(std::string_view macro, Session& session) {
  Stage stage = Stage::kClosed;
  std::string file;
  for (const ReplaceStep& step : StepsOf(macro)) {
    if (IsWithoutEffect(step)) continue;
    const auto* const row =
        std::ranges::find_if(kStages, [&](const StageRow& known) { return Fits(step, known); });
    if (row == std::end(kStages) || row->wants != stage)
      return {"macro step \"" + step.text + "\"", ""};
    stage = row->then;
    if (stage == Stage::kUnrelated && step.names.back() != "Unrelated Component") {
      return {"macro step \"" + step.text + "\"", ""};
    }
    if (stage == Stage::kChosen) file = step.names.back();
  }
  if (stage != Stage::kDone) return {"a macro that leaves its dialog open", ""};
  return {"", Replace(file, session)};
}

}  // namespace wb
