// Takes the work of a command away before it, and looks for it afterwards.
#include "workbench/bench/bench_work.h"

#include <algorithm>
#include <utility>

#include "workbench/bench/bench_walk.h"

namespace wb {
namespace {

// Lines that the press of AddRels adds.
constexpr size_t kBenchRelations = 2;

constexpr char kCountParameter[] = "数量";

bool IsPlaced(const Feature& feature) {
  return feature.IsComponent() && feature.status == FeatureStatus::kActive;
}

void SetHidden(ItemList<Feature>& features, bool hidden) {
  for (Feature& feature : features) feature.hidden = hidden;
}

// One of another kind than the command puts in its place. Without any the command would start a
// thread for each component, to confirm the host's dialog.
void Constrain(ItemList<Feature>& features) {
  for (Feature& feature : features) feature.constraints.assign(1, ComponentConstraint{});
}

void DropWork(BenchPart part, Model& model, SolidContent& solid) {
  switch (part) {
    case BenchPart::kModelCount:
      model.DeleteParameter(kCountParameter);
      break;
    case BenchPart::kColours:
      solid.appearance.reset();
      break;
    case BenchPart::kAddRelations:
      solid.relations.reset();
      break;
    case BenchPart::kSetMaterial:
      solid.material.clear();
      break;
    case BenchPart::kBendTable:
      solid.bend_table.clear();
      break;
    case BenchPart::kBox:
      // The bare walk hides components in turn, and what is hidden is in no box.
      SetHidden(solid.features, false);
      break;
    case BenchPart::kIsolate:
      SetHidden(solid.features, true);
      break;
    case BenchPart::kRemoveConstraints:
      Constrain(solid.features);
      break;
    case BenchPart::kSimplify:
      solid.reps.Clear();
      solid.active_rep.clear();
      break;
    default:
      break;
  }
}

// Components of the top level. To isolate all of them makes the most work: what is below them is
// collected twice, hidden and shown. A representation that keeps the first one names all others.
std::vector<PickedItem> Preselected(Model& top, BenchPart part) {
  std::vector<PickedItem> picks;
  if (part != BenchPart::kIsolate && part != BenchPart::kSimplify) return picks;
  for (const Feature& feature : std::as_const(top).solid().features) {
    if (!IsPlaced(feature)) continue;
    Model* const model = feature.ComponentModel();
    picks.push_back({static_cast<int>(model->id.kind), 0, model, &top, {feature.id}});
    if (part == BenchPart::kSimplify) break;
  }
  return picks;
}

bool IsShown(const Feature& feature) {
  return !IsPlaced(feature) || !feature.hidden;
}

bool IsFixed(const Feature& feature) {
  return !IsPlaced(feature) ||
         (feature.constraints.size() == 1 && feature.constraints.front().type == PRO_ASM_FIX);
}

template <typename Are>
bool AllComponents(const Session& session, Are are) {
  return std::ranges::all_of(session.models(), [&](const auto& model) {
    return std::ranges::all_of(FeaturesOf(*model), are);
  });
}

bool IsSimplified(const SolidContent& top) {
  const auto placed = std::ranges::count_if(top.features, &IsPlaced);
  return top.reps.size() == 1 && top.active_rep == top.reps[0].name &&
         static_cast<std::ptrdiff_t>(top.reps[0].items.size()) == placed - 1;
}

// Models that the part is to change.
bool IsMeant(BenchPart part, const Model& model, const SolidContent& solid) {
  switch (part) {
    case BenchPart::kSetMaterial:
      return model.id.kind == ModelKind::kPart;
    case BenchPart::kBendTable:
      return solid.sheet_metal;
    default:
      return true;
  }
}

bool HasWork(BenchPart part, const SolidContent& solid, const std::string& units) {
  switch (part) {
    case BenchPart::kColours:
      return solid.appearance.has_value();
    case BenchPart::kAddRelations:
      return solid.relations && solid.relations->size() == kBenchRelations;
    case BenchPart::kSetUnits:
      return solid.units == units;
    case BenchPart::kSetMaterial:
      return !solid.material.empty();
    case BenchPart::kBendTable:
      return !solid.bend_table.empty();
    default:
      return true;
  }
}

}  // namespace

void PrepareWork(Host& host, Model& top, BenchPart part) {
  for (const auto& model : host.session.models()) {
    SolidContent* const solid = model->As<SolidContent>();
    if (solid != nullptr) DropWork(part, *model, *solid);
  }
  host.session.selection_buffer = Preselected(top, part);
}

bool HasWorked(Host& host, Model& top, BenchPart part, const std::string& units) {
  switch (part) {
    case BenchPart::kAddParameter:
      return top.FindParameter(kBenchParameter) != nullptr;
    case BenchPart::kIsolate:
      // All of them stand hidden before, too: that they are hidden first shows in the calls alone.
      return host.trace.Count("ProModelitemHide") > 0 && AllComponents(host.session, &IsShown);
    case BenchPart::kRemoveConstraints:
      return AllComponents(host.session, &IsFixed);
    case BenchPart::kSimplify:
      return IsSimplified(top.solid());
    default:
      return AllComponents(host.session, [&](const Feature& feature) {
        const Model* const model = IsPlaced(feature) ? feature.ComponentModel() : nullptr;
        const SolidContent* const solid = model != nullptr ? model->As<SolidContent>() : nullptr;
        return solid == nullptr || !IsMeant(part, *model, *solid) || HasWork(part, *solid, units);
      });
  }
}

}  // namespace wb
