// Placements from CONTEXT_DEPENDENT_SHAPE_REPRESENTATION and from MAPPED_ITEM.
#include "workbench/step/step_placement.h"

#include <algorithm>

namespace wb {
namespace {

constexpr std::string_view kTransforming = "REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION";

}  // namespace

StepPlacements::StepPlacements(const StepFile& file, const StepCatalog& catalog,
                               const StepDefinitions& definitions, StepUnits& units,
                               StepShapes& shapes)
    : file_(file), definitions_(definitions), units_(units), shapes_(shapes) {
  for (const StepRecord* link : catalog.Of("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION")) {
    const StepArguments values = file.Arguments(*link);
    const StepRecord& relation = values.Reference(0);
    const StepRecord* usage = definitions.SubjectOf(values.Reference(1));
    if (usage != nullptr) relations_[usage].push_back(&relation);
  }
}

std::optional<StepPlacement> StepPlacements::OfUsage(const StepRecord& usage, int parent,
                                                     int child) {
  const auto relations = relations_.find(&usage);
  if (relations != relations_.end()) {
    for (const StepRecord* relation : relations->second) {
      if (const auto placement = FromRelation(*relation, parent, child)) return placement;
    }
  }
  for (const StepRecord* shape : definitions_.RepresentationsOfUsage(usage)) {
    const std::vector<StepMapping> mappings = shapes_.MappingsOf(*shape);
    if (!mappings.empty()) return mappings.front().placement;
  }
  return std::nullopt;
}

bool StepPlacements::Lists(const StepRecord& representation, const StepRecord& item) {
  const auto [place, added] = items_.try_emplace(&representation);
  auto& items = place->second;
  if (added) {
    items = file_.Arguments(representation, "REPRESENTATION").References(1);
    std::sort(items.begin(), items.end());
  }
  return std::binary_search(items.begin(), items.end(), &item);
}

// The transformation leads from rep_1, normally the component's, to rep_2, the assembly's. Some
// writers name the representations, or the two placements, the other way round; which belongs to
// whom tells.
std::optional<StepPlacement> StepPlacements::FromRelation(const StepRecord& relation, int parent,
                                                          int child) {
  if (!file_.TypeOf(relation).Has("REPRESENTATION_RELATIONSHIP") &&
      !file_.TypeOf(relation).Has(kTransforming) &&
      !file_.TypeOf(relation).Has("SHAPE_REPRESENTATION_RELATIONSHIP")) {
    file_.Fail(relation, "stands where a relation of two representations is due");
  }
  const StepArguments ends = file_.Arguments(relation, "REPRESENTATION_RELATIONSHIP");
  const StepRecord& rep_1 = ends.Reference(2);
  const StepRecord& rep_2 = ends.Reference(3);
  const bool swapped = !(definitions_.Owns(child, rep_1) && definitions_.Owns(parent, rep_2)) &&
                       definitions_.Owns(parent, rep_1) && definitions_.Owns(child, rep_2);
  StepPlacement placement;
  if (file_.TypeOf(relation).Has(kTransforming)) {
    const StepRecord& transformation = file_.Arguments(relation, kTransforming, 4).Reference(0);
    if (file_.TypeOf(transformation).Has("ITEM_DEFINED_TRANSFORMATION")) {
      const StepArguments items = file_.Arguments(transformation);
      const StepRecord* item_1 = &items.Reference(2);
      const StepRecord* item_2 = &items.Reference(3);
      if ((!Lists(rep_1, *item_1) || !Lists(rep_2, *item_2)) && Lists(rep_2, *item_1) &&
          Lists(rep_1, *item_2)) {
        std::swap(item_1, item_2);
      }
      placement = Then(Inverse(ReadStepPlacement(file_, *item_1, units_.ScaleOf(rep_1))),
                       ReadStepPlacement(file_, *item_2, units_.ScaleOf(rep_2)));
    } else {
      placement = ReadStepPlacement(file_, transformation, units_.ScaleOf(rep_2));
    }
  }
  return swapped ? Inverse(placement) : placement;
}

std::vector<StepPlacements::Shown> StepPlacements::ShownBy(int parent) {
  std::vector<Shown> shown;
  for (const StepRecord* representation : definitions_.all()[parent].representations) {
    for (const StepMapping& mapping : shapes_.MappingsOf(*representation)) {
      const int child = definitions_.OwnerOf(*mapping.representation);
      if (child < 0 || definitions_.Owns(parent, *mapping.representation)) continue;
      shown.push_back({child, mapping.item, mapping.placement});
    }
  }
  return shown;
}

}  // namespace wb
