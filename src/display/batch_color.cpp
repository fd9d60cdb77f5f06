// BatchColor: every model under the current assembly, subassemblies too, or the current part gets a
// colour; the assembly itself does not.
#include "display/batch_color.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "display/appearance.h"
#include "display/colour_rules.h"
#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/opening.h"
#include "frame/settings/config.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// Draws colours by the user's setting. Each section of a table is read once.
class ColourSource {
 public:
  ColourSource()
      : mode_(ColourModeOf(ReadSetting(L"QmRandomColorOpt", kValueKey, ConfigPath(kConfigFile)))) {
    if (mode_ == ColourMode::kHues) table_ = ConfigPath(L"QmUGColor.ini");
    if (mode_ == ColourMode::kDistinct) table_ = ConfigPath(L"QmOptiColor.ini");
    if (mode_ == ColourMode::kNone) LogOutcome("no colour mode is set: black");
    std::srand(static_cast<unsigned>(std::time(nullptr)));
  }

  Colour Next() {
    return ChooseColour(
        mode_, [] { return std::rand(); }, [this](int section) { return TableColour(section); });
  }

 private:
  Colour TableColour(int section) {
    const auto [known, is_new] = known_.try_emplace(section);
    if (is_new) {
      const std::wstring text = ReadSetting(std::to_wstring(section).c_str(), kValueKey, table_);
      if (text.empty()) LogFailure("a section of the colour table is missing: black");
      known->second = ParseColour(text);
    }
    return known->second;
  }

  ColourMode mode_;
  std::wstring table_;
  std::map<int, Colour> known_;
};

std::vector<ProMdl> DistinctModels(const ComponentList& components) {
  std::vector<ProMdl> models;
  for (int i = 0; i < components.size(); ++i) {
    if (components.model(i) != nullptr) models.push_back(components.model(i));
  }
  std::ranges::sort(models, std::less<>());
  const auto repeated = std::ranges::unique(models);
  models.erase(repeated.begin(), repeated.end());
  return models;
}

bool Paint(ProMdl model, const Colour& colour) {
  const auto item = ItemOfModel(model);
  if (!item) return false;
  AppearanceNumbers numbers = kColouredAppearance;
  numbers.colour = {colour.red, colour.green, colour.blue};
  return WriteAppearance(*item, AppearanceWith(numbers));
}

void PaintAll(const std::vector<ProMdl>& models) {
  ColourSource colours;
  long long painted = 0;
  for (const ProMdl model : models) painted += Paint(model, colours.Next()) ? 1 : 0;
  LogCount("models", static_cast<long long>(models.size()));
  LogCount("worked on", painted);
  ProWindowRepaint(kAllWindows);
}

}  // namespace

ProError BatchColor() {
  ProMdl current = nullptr;
  const ProError status = ProMdlCurrentGet(&current);
  if (!Ok(status)) return status;
  const auto model = CurrentModelItself();
  if (model && model->type == PRO_MDL_PART) {
    PaintAll({model->model});
    return PRO_TK_NO_ERROR;
  }
  const auto root = AssemblyOf(model);
  if (!root) {
    LogOutcome("nothing done, no current part or assembly");
    return PRO_TK_NO_ERROR;
  }
  const Opening opening =
      OpenAssembly(*root, ComponentsOf(ComponentKind::kAll), L"当前模型中没有子零件/组件");
  if (opening.components.empty()) return opening.status;
  PaintAll(DistinctModels(opening.components));
  NoteLeftOut(opening.left_out);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
