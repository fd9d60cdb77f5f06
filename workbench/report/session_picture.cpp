// Pictures of a session and the differences between two of them.
#include "workbench/report/session_picture.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <unordered_set>

#include "workbench/session/model_facts.h"

namespace wb {
namespace {

TreeIcon IconOf(const Model& model) {
  switch (model.id.kind) {
    case ModelKind::kAssembly:
      return TreeIcon::kAssembly;
    case ModelKind::kDrawing:
    case ModelKind::kFormat:
      return TreeIcon::kDrawing;
    case ModelKind::kManufacturing:
      return TreeIcon::kManufacturing;
    case ModelKind::kPart:
      break;
  }
  if (model.solid().skeleton) return TreeIcon::kSkeleton;
  return model.solid().sheet_metal ? TreeIcon::kSheetMetal : TreeIcon::kPart;
}

TreeRow RowOf(const Feature& component, int depth) {
  TreeRow row;
  row.depth = depth;
  row.id = component.id;
  const ModelLink& link = component.component->link;
  row.name = link.name.Text();
  if (link.name.kind == ModelKind::kAssembly) row.icon = TreeIcon::kAssembly;
  if (link.model) row.icon = IconOf(*link.model);
  row.hidden = component.hidden || !component.visible;
  row.suppressed = component.status != FeatureStatus::kActive;
  row.missing = link.model == nullptr;
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
      const ItemList<Feature>& features = FeaturesOf(*level.model);
      if (level.next == features.size()) {
        entered_.erase(level.model);
        stack_.pop_back();
        continue;
      }
      const Feature& feature = features[level.next++];
      if (!feature.IsComponent()) continue;
      *depth = static_cast<int>(stack_.size());
      if (feature.ComponentModel()) Enter(*feature.ComponentModel());
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
    const ItemList<Feature>& features = FeaturesOf(*level.model);
    if (level.next == features.size()) {
      rows_[level.model] = level.rows;
      open_.pop_back();
      return;
    }
    const Feature& feature = features[level.next];
    const Model* const below = feature.ComponentModel();
    if (below && !rows_.contains(below)) return Begin(*below);
    ++level.next;
    if (!feature.IsComponent()) return;
    level.rows = Sum(level.rows, below ? rows_.at(below) : 1);
  }

  std::unordered_map<const Model*, std::uint64_t> rows_;
  std::vector<Level> open_;
};

DrawingPicture DrawingPictureOf(const Model& model, const SessionPicture& before,
                                const SessionPicture& after) {
  const auto& content = *model.As<DrawingContent>();
  DrawingPicture drawing;
  drawing.name = model.id.Text();
  if (content.shows) drawing.shows = content.shows->name.Text();
  drawing.sheets = after.sheets.at(drawing.name);
  const auto was = before.sheets.find(drawing.name);
  if (was != before.sheets.end()) drawing.before = was->second;
  return drawing;
}

void NoteParameters(const std::string& name, const Model& before, const Model& after,
                    CommandRecord& command) {
  for (const Parameter& was : before.parameters) {
    if (after.parameters.Find(ItemKey(was)) != nullptr) continue;
    command.parameters.push_back({name, was.name, ParameterText(was.value), {}});
  }
  for (const Parameter& is : after.parameters) {
    const Parameter* const was = before.parameters.Find(ItemKey(is));
    const std::string text = ParameterText(is.value);
    if (was == nullptr) {
      command.parameters.push_back({name, is.name, {}, text});
    } else if (ParameterText(was->value) != text) {
      command.parameters.push_back({name, is.name, ParameterText(was->value), text});
    }
  }
}

std::string ItemText(const Feature& feature) {
  const std::string id = std::to_string(feature.id);
  if (!feature.component) return "feature " + id;
  return feature.component->link.name.Text() + " (" + id + ")";
}

std::string StateText(const Feature& feature) {
  std::string text = feature.hidden ? "hidden" : feature.visible ? "shown" : "not visible";
  if (feature.status != FeatureStatus::kActive) {
    text += std::string(", ") + WordFor(feature.status);
  }
  return text;
}

void NoteStates(const std::string& name, const Model& before, const Model& after,
                CommandRecord& command) {
  for (const Feature& was : FeaturesOf(before)) {
    const Feature* const now = after.FindFeature(was.id);
    const std::string is = now == nullptr ? "deleted" : StateText(*now);
    if (StateText(was) != is) {
      command.states.push_back({name, ItemText(was), StateText(was), is});
    }
  }
  for (const Feature& is : FeaturesOf(after)) {
    if (before.FindFeature(is.id) != nullptr) continue;
    command.states.push_back({name, ItemText(is), "not there", StateText(is)});
  }
}

// What has a table of its own in the report: parameters, and of features whether they are there and
// how they are shown.
bool IsToldElsewhere(std::string_view path) {
  constexpr std::string_view kFeatures = "features/";
  constexpr std::string_view kStates[] = {"status", "visible", "hidden"};
  if (!path.starts_with(kFeatures)) return path.starts_with("parameters/");
  const std::size_t slash = path.find('/', kFeatures.size());
  if (slash == std::string_view::npos) return true;
  return std::ranges::find(kStates, path.substr(slash + 1)) != std::end(kStates);
}

void NoteFacts(const std::string& name, const Model& before, const Model& after,
               CommandRecord& command) {
  for (const FactChange& change : ChangesBetween(before, after)) {
    if (IsToldElsewhere(change.path)) continue;
    command.facts.push_back({name, change.path, change.before, change.after});
  }
}

bool HasNoted(const CommandRecord& command, const std::string& model) {
  return std::ranges::any_of(command.facts,
                             [&](const ValueChange& change) { return change.model == model; });
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
    picture.tree = TakeTree(ShownSolid(*current));
    picture.scene = TakeScene(ShownSolid(*current));
  }
  for (const auto& model : session.models()) {
    picture.models.emplace(model->id.Text(), *model);
    const DrawingContent* const drawing = model->As<DrawingContent>();
    if (drawing != nullptr) picture.sheets.emplace(model->id.Text(), PictureOf(*drawing));
  }
  return picture;
}

void NoteChanges(const SessionPicture& before, const SessionPicture& after,
                 CommandRecord& command) {
  command.tree_before = before.tree;
  command.tree_after = after.tree;
  command.scene_before = before.scene;
  if (!(before.scene == after.scene)) command.scene_after = after.scene;
  for (const auto& [name, now] : after.models) {
    const auto old = before.models.find(name);
    if (old != before.models.end()) {
      NoteParameters(name, old->second, now, command);
      NoteStates(name, old->second, now, command);
      NoteFacts(name, old->second, now, command);
    }
    if (now.As<DrawingContent>() == nullptr) continue;
    const bool changed = old == before.models.end() || HasNoted(command, name);
    if (!changed && name != after.current) continue;
    command.drawings.push_back(DrawingPictureOf(now, before, after));
  }
}

}  // namespace wb
