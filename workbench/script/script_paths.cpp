// Ways through an assembly by names.
#include "workbench/script/script_paths.h"

#include <map>

#include "workbench/base/text.h"
#include "workbench/language/script_words.h"
#include "workbench/script/script_runner.h"

namespace wb {
namespace {

bool IsNamed(const Feature& feature, const std::string& name) {
  if (!feature.component) return false;
  const ModelName& model = feature.component->link.name;
  return EqualFolded(model.name, name) || EqualFolded(model.Text(), name);
}

// More paths than these are only counted.
constexpr size_t kMostOffered = 20;

// The components of `parent` as steps of a path: names, counted where they repeat.
std::vector<std::string> StepsOf(const Model& parent) {
  std::vector<std::string> steps;
  std::map<std::string, int> seen;
  for (const Feature& feature : FeaturesOf(parent)) {
    if (!feature.component) continue;
    const std::string& name = feature.component->link.name.name;
    const int number = ++seen[FoldCase(name)];
    steps.push_back(number == 1 ? name : name + "#" + std::to_string(number));
  }
  return steps;
}

// What may stand after `above`, the part of the path that holds ("" or "rotor/").
std::string OfferedPaths(const Model& parent, const std::string& above, const std::string& step) {
  std::vector<std::string> paths = StepsOf(parent);
  if (paths.empty()) return "; it has none at all";
  const std::string meant = NearestWord(step, paths);
  const size_t count = paths.size();
  paths.resize(std::min(count, kMostOffered));
  for (std::string& path : paths) path = above + path;
  std::string text = meant.empty() ? "" : "; did you mean " + above + meant + "?";
  text += "; paths offered: " + Join(", ", paths);
  if (count > kMostOffered) text += " and " + std::to_string(count - kMostOffered) + " more";
  return text;
}

// The last step of `path`, below `parent`.
Feature& ComponentOf(Model& parent, const std::string& path) {
  const size_t slash = path.rfind('/');
  const std::string above = slash == std::string::npos ? "" : path.substr(0, slash + 1);
  const std::string step = path.substr(above.size());
  const size_t mark = step.find_last_of("#@");
  const std::string name = step.substr(0, mark);
  const int number = mark == std::string::npos ? 1 : WholeNumber(step.substr(mark + 1)).value_or(0);
  const bool by_id = mark != std::string::npos && step[mark] == '@';
  int seen = 0;
  for (const Feature& feature : FeaturesOf(parent)) {
    if (by_id ? feature.IsComponent() && feature.id == number
              : IsNamed(feature, name) && ++seen == number) {
      return *parent.FindFeature(feature.id);
    }
  }
  throw ScriptError(parent.id.Text() + " has no component \"" + step + "\"" +
                    OfferedPaths(parent, above, step));
}

PickedItem PickOf(Model& root, const std::string& path) {
  if (path == ".") return {static_cast<int>(root.id.kind), 0, &root, &root, {}};
  const ComponentSpot spot = FindComponentSpot(root, path);
  Model* const model = spot.feature->ComponentModel();
  if (model == nullptr) {
    throw ScriptError("the model of component \"" + path + "\" is not in session");
  }
  return {static_cast<int>(model->id.kind), 0, model, &root, spot.ids};
}

bool IsThere(const DrawingContent& drawing, int type, int id) {
  return (type == PRO_VIEW && drawing.views.Find(id) != nullptr) ||
         (type == PRO_DIMENSION && drawing.dimensions.Find(id) != nullptr) ||
         (type == PRO_DRAW_TABLE && drawing.tables.Find(id) != nullptr) ||
         (type == PRO_NOTE && drawing.notes.Find(id) != nullptr);
}

// Edges and the like are not modelled: any may be picked.
bool IsThere(const SolidContent& solid, int type, int id) {
  if (type == PRO_SURFACE) return solid.surfaces.Find(id) != nullptr;
  if (type == PRO_CSYS) return solid.coordinate_systems.Find(id) != nullptr;
  if (type == PRO_FEATURE) return solid.features.Find(id) != nullptr;
  return true;
}

void CheckItem(const PickedItem& pick) {
  const DrawingContent* const drawing = pick.owner->As<DrawingContent>();
  const SolidContent* const solid = pick.owner->As<SolidContent>();
  const bool is_there = (drawing == nullptr || IsThere(*drawing, pick.type, pick.id)) &&
                        (solid == nullptr || IsThere(*solid, pick.type, pick.id));
  if (!is_there) {
    throw ScriptError(pick.owner->id.Text() + " has no " + WordOf(ItemWords(), pick.type) + " " +
                      std::to_string(pick.id));
  }
}

}  // namespace

ComponentSpot FindComponentSpot(Model& root, const std::string& path) {
  ComponentSpot spot;
  Model* parent = &root;
  for (size_t at = 0; at <= path.size();) {
    const size_t slash = std::min(path.find('/', at), path.size());
    if (parent == nullptr) {
      throw ScriptError("\"" + path.substr(0, at - 1) + "\" is not in session");
    }
    spot.owner = parent;
    spot.feature = &ComponentOf(*parent, path.substr(0, slash));
    spot.ids.push_back(spot.feature->id);
    parent = spot.feature->ComponentModel();
    at = slash + 1;
  }
  return spot;
}

std::vector<PickedItem> PicksOf(ScriptRun& run, const Statement& statement) {
  std::vector<PickedItem> picks;
  Model& root = run.Root();
  if (statement.Has("IDS")) {
    const int type = NumberOf(ItemWords(), statement.Text("ITEM")).value_or(0);
    for (const std::string& id : statement.Texts("IDS")) {
      picks.push_back(
          {type, std::atoi(id.c_str()), &run.ModelNamed(statement.Text("MODEL")), &root, {}});
      CheckItem(picks.back());
    }
    return picks;
  }
  if (statement.Has("ITEM")) {
    PickedItem pick{NumberOf(ItemWords(), statement.Text("ITEM")).value_or(0),
                    statement.Number("ID"),
                    &run.ModelNamed(statement.Text("MODEL")),
                    &root,
                    {}};
    if (statement.Has("at")) pick.path = PickOf(root, statement.Text("PATH")).path;
    CheckItem(pick);
    picks.push_back(pick);
    return picks;
  }
  for (const std::string& path : statement.Texts("PATH")) picks.push_back(PickOf(root, path));
  return picks;
}

std::string DescribePick(const PickedItem& pick) {
  if (pick.owner == nullptr) return "something that is gone";
  const bool is_model = pick.type == static_cast<int>(pick.owner->id.kind);
  if (!is_model) {
    return "item " + WordOf(ItemWords(), pick.type) + " " + std::to_string(pick.id) + " of " +
           pick.owner->id.name;
  }
  if (pick.path.empty()) return ".";
  std::string text;
  Model* at = pick.root;
  for (const int id : pick.path) {
    Feature* const feature = at == nullptr ? nullptr : at->FindFeature(id);
    text += (text.empty() ? "" : "/");
    const bool known = feature != nullptr && feature->component;
    text += known ? feature->component->link.name.name : "@" + std::to_string(id);
    at = known ? feature->component->link.model : nullptr;
  }
  return text;
}

}  // namespace wb
