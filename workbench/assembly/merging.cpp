// Finds occurrences and brings surfaces over.
#include "workbench/assembly/merging.h"

#include <cmath>
#include <ranges>
#include <unordered_set>
#include <vector>

#include "workbench/session/extents.h"

namespace wb {
namespace {

struct Found {
  const Model* model;
  Placement placement;
};

}  // namespace

std::optional<Placement> PlacementAt(const Model& root, const std::vector<int>& path) {
  Found at = {&root, kIdentityPlacement};
  for (const int id : path) {
    const Feature* const feature = at.model->FindFeature(id);
    const Model* const below = feature != nullptr ? feature->ComponentModel() : nullptr;
    if (below == nullptr) return std::nullopt;
    at = {below, PlacedWithin(ComponentPlacement(*at.model, *feature), at.placement)};
  }
  return at.placement;
}

std::optional<Placement> FirstPlacementOf(const Model& root, const Model& model) {
  std::vector<Found> pending = {{&root, kIdentityPlacement}};
  std::unordered_set<const Model*> met;
  while (!pending.empty()) {
    const Found at = pending.back();
    pending.pop_back();
    if (at.model == &model) return at.placement;
    if (!met.insert(at.model).second) continue;
    // The last one waits the longest.
    for (const Feature& feature : FeaturesOf(*at.model) | std::views::reverse) {
      const Model* const below = feature.ComponentModel();
      if (below == nullptr) continue;
      pending.push_back(
          {below, PlacedWithin(ComponentPlacement(*at.model, feature), at.placement)});
    }
  }
  return std::nullopt;
}

Placement Inverse(const Placement& placement) {
  Placement inverse = kIdentityPlacement;
  for (size_t row = 0; row < 3; ++row) {
    for (size_t column = 0; column < 3; ++column) inverse[row][column] = placement[column][row];
  }
  for (size_t column = 0; column < 3; ++column) {
    inverse[3][column] = 0;
    for (size_t k = 0; k < 3; ++k) inverse[3][column] -= placement[3][k] * inverse[k][column];
  }
  return inverse;
}

bool IsRigid(const Placement& placement) {
  constexpr double kRounding = 1e-9;
  for (size_t row = 0; row < 3; ++row) {
    for (size_t other = 0; other < 3; ++other) {
      double product = 0;
      for (size_t k = 0; k < 3; ++k) product += placement[row][k] * placement[other][k];
      if (std::abs(product - (row == other ? 1 : 0)) > kRounding) return false;
    }
    if (placement[row][3] != 0) return false;
  }
  const auto& p = placement;
  const double turn = p[0][0] * (p[1][1] * p[2][2] - p[1][2] * p[2][1]) -
                      p[0][1] * (p[1][0] * p[2][2] - p[1][2] * p[2][0]) +
                      p[0][2] * (p[1][0] * p[2][1] - p[1][1] * p[2][0]);
  return turn > 0 && placement[3][3] == 1;
}

bool HasGeometryOf(Session& session, const Model& part, const Model& other) {
  std::vector<const Model*> pending = {&part};
  std::unordered_set<const Model*> met;
  while (!pending.empty()) {
    const Model* const at = pending.back();
    pending.pop_back();
    if (at == &other) return true;
    if (!met.insert(at).second) continue;
    for (const Feature& feature : FeaturesOf(*at)) {
      const auto name = ParseModelName(feature.merged);
      const Model* const merged = name ? session.Find(*name) : nullptr;
      if (merged != nullptr) pending.push_back(merged);
    }
  }
  return false;
}

int AddMergeFeature(Model& target, const Model& source, const Placement& placement,
                    const std::string& name) {
  SolidContent& solid = target.solid();
  Feature feature;
  feature.id = NextId(solid.features);
  feature.type = PRO_FEAT_MERGE;
  feature.name = name;
  feature.merged = source.id.Text();
  for (const Surface& surface : source.solid().surfaces) {
    Surface brought = surface;
    brought.id = NextId(solid.surfaces);
    brought.box = BoxPlacedAt(surface.box, placement);
    solid.surfaces.Add(brought);
  }
  target.modified = true;
  return solid.features.Add(std::move(feature)).id;
}

}  // namespace wb
