// Pictures of a session and the differences between two of them.
#include "workbench/report/session_picture.h"

#include <limits>
#include <unordered_map>
#include <unordered_set>

namespace wb {
namespace {

TreeIcon IconOf(const Model& model) {
  switch (model.id.kind) {
    case ModelKind::kAssembly:
      return TreeIcon::kAssembly;
    case ModelKind::kDrawing:
      return TreeIcon::kDrawing;
    case ModelKind::kManufacturing:
      return TreeIcon::kManufacturing;
    case ModelKind::kPart:
      break;
  }
  if (model.skeleton) return TreeIcon::kSkeleton;
  return model.sheet_metal ? TreeIcon::kSheetMetal : TreeIcon::kPart;
}

TreeRow RowOf(const Feature& component, int depth) {
  TreeRow row;
  row.depth = depth;
  row.id = component.id;
  row.name = component.component.Text();
  if (component.component.kind == ModelKind::kAssembly) row.icon = TreeIcon::kAssembly;
  if (component.model) row.icon = IconOf(*component.model);
  row.hidden = component.hidden || !component.visible;
  row.suppressed = component.status != FeatureStatus::kActive;
  row.missing = component.model == nullptr;
  return row;
}

// Visits the occurrences under a model one by one: the model's components in order, each followed
// by its own. A model inside itself is entered once.
class TreeWalk {
 public:
  explicit TreeWalk(const Model& root) { Enter(root); }

  // The next component and its depth; null at the end.
  const Feature* Next(int* depth) {
    while (!stack_.empty()) {
      Level& level = stack_.back();
      if (level.next == level.model->features.size()) {
        entered_.erase(level.model);
        stack_.pop_back();
        continue;
      }
      const Feature& feature = level.model->features[level.next++];
      if (!feature.IsComponent()) continue;
      *depth = static_cast<int>(stack_.size());
      if (feature.model) Enter(*feature.model);
      return &feature;
    }
    return nullptr;
  }

 private:
  struct Level {
    const Model* model;
    std::size_t next;
  };

  void Enter(const Model& model) {
    if (entered_.insert(&model).second) stack_.push_back({&model, 0});
  }

  std::vector<Level> stack_;
  std::unordered_set<const Model*> entered_;
};

constexpr std::uint64_t kEndless = std::numeric_limits<std::uint64_t>::max();

std::uint64_t Sum(std::uint64_t a, std::uint64_t b) {
  return a > kEndless - b ? kEndless : a + b;
}

// Rows of a tree. Each model is counted once however often it is used, since the number of
// occurrences may be astronomic where models repeat at every level.
class RowCount {
 public:
  std::uint64_t Of(const Model& root) {
    Begin(root);
    while (!open_.empty()) Step();
    return rows_.at(&root);
  }

 private:
  struct Level {
    const Model* model;
    std::size_t next;
    std::uint64_t rows;
  };

  void Begin(const Model& model) {
    rows_[&model] = 1;
    open_.push_back({&model, 0, 1});
  }

  void Step() {
    Level& level = open_.back();
    if (level.next == level.model->features.size()) {
      rows_[level.model] = level.rows;
      open_.pop_back();
      return;
    }
    const Feature& feature = level.model->features[level.next];
    if (feature.IsComponent() && feature.model && !rows_.contains(feature.model)) {
      return Begin(*feature.model);
    }
    ++level.next;
    if (!feature.IsComponent()) return;
    level.rows = Sum(level.rows, feature.model ? rows_.at(feature.model) : 1);
  }

  std::unordered_map<const Model*, std::uint64_t> rows_;
  std::vector<Level> open_;
};

ModelPicture PictureOf(const Model& model) {
  ModelPicture picture;
  for (const Parameter& parameter : model.parameters) {
    picture.parameters.emplace_back(parameter.name, ParameterText(parameter.value));
  }
  for (const Feature& feature : model.features) {
    picture.features.push_back({feature.id, feature.IsComponent() ? feature.component.Text() : "",
                                feature.hidden, feature.visible, feature.status});
  }
  if (model.id.kind == ModelKind::kDrawing) {
    DrawingPicture& drawing = picture.drawing.emplace();
    drawing.name = model.id.Text();
    if (model.drawing_of) drawing.shows = model.drawing_of->Text();
    for (const Sheet& sheet : model.sheets) drawing.sheets.push_back({sheet.size, sheet.scale});
  }
  return picture;
}

void NoteParameters(const std::string& model, const ModelPicture& before, const ModelPicture& after,
                    CommandRecord& command) {
  if (before.parameters == after.parameters) return;
  const std::map<std::string, std::string> old(before.parameters.begin(), before.parameters.end());
  const std::map<std::string, std::string> now(after.parameters.begin(), after.parameters.end());
  for (const auto& [name, value] : before.parameters) {
    if (!now.contains(name)) command.parameters.push_back({model, name, value, {}});
  }
  for (const auto& [name, value] : after.parameters) {
    const auto found = old.find(name);
    if (found == old.end()) {
      command.parameters.push_back({model, name, {}, value});
    } else if (found->second != value) {
      command.parameters.push_back({model, name, found->second, value});
    }
  }
}

std::string ItemText(const FeatureFact& feature) {
  const std::string id = std::to_string(feature.id);
  return feature.component.empty() ? "feature " + id : feature.component + " (" + id + ")";
}

std::string StateText(const FeatureFact& feature) {
  std::string text = feature.hidden ? "hidden" : feature.visible ? "shown" : "not visible";
  if (feature.status != FeatureStatus::kActive) {
    text += std::string(", ") + FeatureStatusWord(feature.status);
  }
  return text;
}

void NoteStates(const std::string& model, const ModelPicture& before, const ModelPicture& after,
                CommandRecord& command) {
  if (before.features == after.features) return;
  std::unordered_map<int, const FeatureFact*> now;
  for (const FeatureFact& feature : after.features) now[feature.id] = &feature;
  for (const FeatureFact& feature : before.features) {
    const auto found = now.find(feature.id);
    const std::string was = StateText(feature);
    const std::string is = found == now.end() ? "deleted" : StateText(*found->second);
    if (was != is) command.states.push_back({model, ItemText(feature), was, is});
    if (found != now.end()) now.erase(found);
  }
  for (const FeatureFact& feature : after.features) {
    if (now.contains(feature.id)) {
      command.states.push_back({model, ItemText(feature), "not there", StateText(feature)});
    }
  }
}

}  // namespace

ModelTree TakeTree(const Model& root, std::size_t most) {
  ModelTree tree;
  TreeRow top;
  top.name = root.id.Text();
  top.icon = IconOf(root);
  tree.rows.push_back(top);
  TreeWalk walk(root);
  int depth = 0;
  while (const Feature* component = walk.Next(&depth)) {
    if (tree.rows.size() >= most) {
      const std::uint64_t rows = RowCount().Of(root);
      tree.left_out = rows > most ? rows - most : 0;
      break;
    }
    tree.rows.push_back(RowOf(*component, depth));
  }
  return tree;
}

SessionPicture TakePicture(const Session& session) {
  SessionPicture picture;
  if (const Model* current = session.Current()) {
    picture.current = current->id.Text();
    // A manufacturing model has no components of its own: its assembly is what users work on.
    const Model* assembly = current->mfg_assembly_model;
    picture.tree = TakeTree(assembly ? *assembly : *current);
  }
  for (const auto& model : session.models()) {
    picture.models.emplace(model->id.Text(), PictureOf(*model));
  }
  return picture;
}

void NoteChanges(const SessionPicture& before, const SessionPicture& after,
                 CommandRecord& command) {
  command.tree_before = before.tree;
  command.tree_after = after.tree;
  for (const auto& [name, now] : after.models) {
    const auto old = before.models.find(name);
    if (old != before.models.end()) {
      NoteParameters(name, old->second, now, command);
      NoteStates(name, old->second, now, command);
    }
    if (!now.drawing) continue;
    const bool changed = old == before.models.end() || old->second.drawing != now.drawing;
    if (changed || name == after.current) command.drawings.push_back(*now.drawing);
  }
}

}  // namespace wb
