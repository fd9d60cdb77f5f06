// The units that the host knows, and conversion of surfaces, dimensions and placements.
#include "workbench/session/units.h"

#include <algorithm>

#include "workbench/session/model.h"

namespace wb {
namespace {

struct UnitRow {
  const char* name;
  UnitKind kind;
  double millimetres;  // of a length
};
constexpr UnitRow kUnits[] = {
    {"mm", UnitKind::kLength, 1},     {"cm", UnitKind::kLength, 10},
    {"m", UnitKind::kLength, 1000},   {"in", UnitKind::kLength, 25.4},
    {"ft", UnitKind::kLength, 304.8}, {"g", UnitKind::kMass, 0},
    {"kg", UnitKind::kMass, 0},       {"lbm", UnitKind::kMass, 0},
    {"N", UnitKind::kForce, 0},       {"lbf", UnitKind::kForce, 0},
    {"sec", UnitKind::kTime, 0},      {"C", UnitKind::kTemperature, 0},
    {"K", UnitKind::kTemperature, 0}, {"F", UnitKind::kTemperature, 0},
};

const UnitRow* FindUnit(std::string_view name) {
  const auto* const unit = std::ranges::find(
      kUnits, name, [](const UnitRow& row) { return std::string_view(row.name); });
  return unit == std::end(kUnits) ? nullptr : unit;
}

// Of the model's principal system; 1 for models whose system is not known.
double Millimetres(const SolidContent& solid) {
  const UnitSystem* const system = FindUnitSystem(solid, solid.units);
  const UnitRow* const unit = system == nullptr ? nullptr : FindUnit(system->length);
  return unit == nullptr || unit->kind != UnitKind::kLength ? 1 : unit->millimetres;
}

void Scale(Point& point, double factor) {
  for (double& at : point) at *= factor;
}

void ScaleOrigin(Placement& placement, double factor) {
  for (std::size_t axis = 0; axis < 3; ++axis) placement[3][axis] *= factor;
}

void ScaleNumbers(SolidContent& solid, double factor) {
  for (Surface& surface : solid.surfaces) {
    Scale(surface.box.min, factor);
    Scale(surface.box.max, factor);
  }
  for (SolidDimension& dimension : solid.dimensions) dimension.value *= factor;
  for (CoordinateSystem& system : solid.coordinate_systems) ScaleOrigin(system.placement, factor);
  for (Feature& feature : solid.features) {
    if (feature.component) ScaleOrigin(feature.component->placement, factor);
  }
}

}  // namespace

std::optional<UnitKind> KindOfUnit(std::string_view unit) {
  const UnitRow* const row = FindUnit(unit);
  return row == nullptr ? std::nullopt : std::optional(row->kind);
}

std::span<const UnitSystem> PredefinedUnitSystems() {
  constexpr auto kMass = UnitSystemType::kMassLengthTime;
  constexpr auto kForce = UnitSystemType::kForceLengthTime;
  static const UnitSystem kSystems[] = {
      {"Centimeter Gram Second (CGS)", kMass, "cm", "g", "sec", "C"},
      {"Foot Pound Second (FPS)", kForce, "ft", "lbf", "sec", "F"},
      {"Inch Pound Second (IPS)", kForce, "in", "lbf", "sec", "F"},
      {"Inch lbm Second (Pro/E Default)", kMass, "in", "lbm", "sec", "F"},
      {"Meter Kilogram Second (MKS)", kMass, "m", "kg", "sec", "C"},
      {"millimeter Kilogram Sec (mmKs)", kMass, "mm", "kg", "sec", "C"},
      {kDefaultUnits, kForce, "mm", "N", "sec", "C"},
  };
  return kSystems;
}

const UnitSystem* FindUnitSystem(const SolidContent& solid, std::string_view name) {
  for (const UnitSystem& system : PredefinedUnitSystems()) {
    if (system.name == name) return &system;
  }
  for (const UnitSystem& system : solid.unit_systems) {
    if (system.name == name) return &system;
  }
  return nullptr;
}

double LengthRatio(const Model& inner, const Model& outer) {
  const SolidContent* const in = inner.As<SolidContent>();
  const SolidContent* const out = outer.As<SolidContent>();
  if (in == nullptr || out == nullptr) return 1;
  return Millimetres(*in) / Millimetres(*out);
}

void ConvertUnits(SolidContent& solid, const UnitSystem& to, UnitConversion conversion) {
  const double before = Millimetres(solid);
  solid.units = to.name;
  const double after = Millimetres(solid);
  if (conversion == UnitConversion::kSameSize && before != after) {
    ScaleNumbers(solid, before / after);
  }
}

}  // namespace wb
