// Reads the macro step by step, and replaces the component at its end.
#include "workbench/plugin/replace_macro.h"

#include <algorithm>
#include <vector>

#include "workbench/host/call.h"
#include "workbench/plugin/macro_steps.h"
#include "workbench/session/model_cycle.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

// How far the dialog has come; each step wants the one before.
enum class Stage {
  kClosed,
  kPopup,
  kOpen,
  kUnrelated,
  kChoosing,
  kInWorkingDirectory,
  kChosen,
  kDone,
};

// Older releases open the dialog from their menu, newer ones from the component's popup menu.
enum class Releases { kAll, kOlder, kNewer };

struct StageRow {
  const char* action;
  const char* first;   // names of the step
  const char* second;  // null: any; the rest of the names is the choice
  Stage wants;
  Stage then;
  Releases releases = Releases::kAll;
};
// clang-format off
constexpr StageRow kStages[] = {
    {"~ Command",  "ProCmdReplace",                          nullptr,                      Stage::kClosed,             Stage::kOpen,   Releases::kOlder},
    {"~",          "rmb_popup",                              "PopupMenu",                  Stage::kClosed,             Stage::kPopup,  Releases::kNewer},
    {"~ Command",  "ProCmdReplComp@PopupMenuGraphicWinStack", nullptr,                     Stage::kPopup,              Stage::kOpen,   Releases::kNewer},
    {"~ Select",   "gen_repl_dlg",                           "ByCompPH.rpl_method_radio",  Stage::kOpen,               Stage::kUnrelated},
    {"~ Activate", "gen_repl_dlg",                           "PB_NewComp",                 Stage::kUnrelated,          Stage::kChoosing},
    {"~ Activate", "file_open",                              "Current Dir",                Stage::kChoosing,           Stage::kInWorkingDirectory},
    {"~ Activate", "file_open",                              "Ph_list.Filelist",           Stage::kInWorkingDirectory, Stage::kChosen},
    {"~ Activate", "gen_repl_dlg",                           "DoneBtn",                    Stage::kChosen,             Stage::kDone},
};
// clang-format on

bool IsOlder(std::string_view release) {
  return release == "5.0" || release == "Creo 1.0" || release == "Creo 2.0";
}

bool IsOf(const StageRow& row, std::string_view release) {
  if (row.releases == Releases::kAll) return true;
  return (row.releases == Releases::kOlder) == IsOlder(release);
}

bool Fits(const MacroStep& step, const StageRow& row) {
  if (step.action != row.action || step.names.empty() || step.names[0] != row.first) return false;
  return row.second == nullptr || (step.names.size() > 1 && step.names[1] == row.second);
}

// What only records where the mouse was.
bool IsWithoutEffect(const MacroStep& step) {
  return step.action == "~ Trail" || step.action.empty();
}

// A choice is one entry of a list; the method is a certain one.
bool IsChoiceRight(const MacroStep& step, Stage reached) {
  const bool is_choice = reached == Stage::kUnrelated || reached == Stage::kChosen;
  if (is_choice && (step.names.size() != 3 || step.count != "1")) return false;
  return reached != Stage::kUnrelated || step.names.back() == "Unrelated Component";
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
  return feature != nullptr && feature->IsComponent() ? feature : nullptr;
}

// Null for a file that cannot be read.
Model* ChosenModel(const ModelName& name, Session& session) {
  try {
    return session.Retrieve(name);
  } catch (const ModelFileError&) {
    return nullptr;
  }
}

std::string Replace(const std::string& file, Session& session) {
  Model* owner = nullptr;
  Feature* const feature = SelectedComponent(session, &owner);
  if (feature == nullptr) return "no component is selected";
  const auto name = ParseModelName(file);
  const bool is_listed = name && file == FoldCase(file) &&
                         !FolderIndex(session.working_directory()).Newest(*name).empty();
  if (!is_listed) return "the list of files has no " + file;
  Model* const model = ChosenModel(*name, session);
  if (model == nullptr) return file + " cannot be read";
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
  const std::string& release = TheHost().release;
  Stage stage = Stage::kClosed;
  std::string file;
  for (const MacroStep& step : ParseMacro(macro)) {
    if (IsWithoutEffect(step)) continue;
    const auto* const row = std::ranges::find_if(
        kStages, [&](const StageRow& known) { return Fits(step, known) && IsOf(known, release); });
    const bool is_known = row != std::end(kStages) && row->wants == stage;
    if (!is_known || !IsChoiceRight(step, row->then)) {
      return {"macro step \"" + step.text + "\"", ""};
    }
    stage = row->then;
    if (stage == Stage::kChosen) file = step.names.back();
  }
  if (stage != Stage::kDone) return {"a macro that leaves its dialog open", ""};
  return {"", Replace(file, session)};
}

}  // namespace wb
