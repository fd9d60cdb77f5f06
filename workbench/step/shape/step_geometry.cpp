// Vector arithmetic, axis placements and length units.
#include "workbench/step/shape/step_geometry.h"

#include <algorithm>
#include <cmath>

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr StepPoint kAxisX = {{1, 0, 0}};
constexpr StepPoint kAxisY = {{0, 1, 0}};
constexpr StepPoint kAxisZ = {{0, 0, 1}};

StepPlacement MakePlacement(const StepPoint& x, const StepPoint& y, const StepPoint& z,
                            const StepPoint& origin) {
  StepPlacement placement;
  for (int k = 0; k < 3; ++k) {
    placement.m[0][k] = x[k];
    placement.m[1][k] = y[k];
    placement.m[2][k] = z[k];
    placement.m[3][k] = origin[k];
  }
  return placement;
}

// The part of `wish` that stands upright on the unit vector `axis`.
StepPoint Upright(const StepPoint& wish, const StepPoint& axis) {
  const StepPoint upright = wish - axis * Dot(wish, axis);
  if (Length(upright) > 1e-9) return Unit(upright, kAxisX);
  const StepPoint other = std::abs(axis[0]) < 0.9 ? kAxisX : kAxisY;
  return Unit(other - axis * Dot(other, axis), kAxisX);
}

// The values are taken from the end, because writers disagree on the inherited names in front.
StepPlacement ReadOperator(const StepFile& file, const StepRecord& record, double scale) {
  constexpr std::string_view kPlain = "CARTESIAN_TRANSFORMATION_OPERATOR";
  const bool complex = file.TypeOf(record).names.size() > 1;
  const StepArguments values = file.Arguments(record, kPlain);
  const std::size_t tail = complex ? 4 : 5;
  if (values.size() < tail) file.Fail(record, "has too few values");
  const std::size_t first = values.size() - tail;
  const StepRecord* axis3 =
      complex ? file.Arguments(record, "CARTESIAN_TRANSFORMATION_OPERATOR_3D").OptionalReference(0)
              : values.OptionalReference(first + 4);
  const StepPoint z = ReadStepDirection(file, axis3, kAxisZ);
  const StepPoint x = Upright(ReadStepDirection(file, values.OptionalReference(first), kAxisX), z);
  StepPoint y = Cross(z, x);
  // A second axis on the other side mirrors the component.
  if (Dot(y, ReadStepDirection(file, values.OptionalReference(first + 1), y)) < 0) y = y * -1;
  const StepPoint origin = ReadStepPoint(file, values.Reference(first + 2), scale);
  const double zoom =
      values.At(first + 3).kind == StepValue::Kind::kNumber ? values.Number(first + 3) : 1;
  return MakePlacement(x * zoom, y * zoom, z * zoom, origin);
}

double SiPrefix(std::string_view name) {
  struct Prefix {
    std::string_view name;
    double factor;
  };
  static constexpr Prefix kPrefixes[] = {
      {"EXA", 1e18},  {"PETA", 1e15},  {"TERA", 1e12},   {"GIGA", 1e9},
      {"MEGA", 1e6},  {"KILO", 1e3},   {"HECTO", 1e2},   {"DECA", 1e1},
      {"DECI", 1e-1}, {"CENTI", 1e-2}, {"MILLI", 1e-3},  {"MICRO", 1e-6},
      {"NANO", 1e-9}, {"PICO", 1e-12}, {"FEMTO", 1e-15}, {"ATTO", 1e-18},
  };
  for (const Prefix& prefix : kPrefixes) {
    if (prefix.name == name) return prefix.factor;
  }
  return 1;
}

}  // namespace

StepPoint Cross(const StepPoint& a, const StepPoint& b) {
  return {{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]}};
}

double Length(const StepPoint& a) {
  return std::sqrt(Dot(a, a));
}

StepPoint Unit(const StepPoint& a, const StepPoint& otherwise) {
  const double length = Length(a);
  return length > 1e-300 && std::isfinite(length) ? a * (1 / length) : otherwise;
}

bool StepBox::Holds(const StepPoint& point, double slack) const {
  for (int k = 0; k < 3; ++k) {
    if (!(point[k] >= min[k] - slack && point[k] <= max[k] + slack)) return false;
  }
  return true;
}

void StepBox::Add(const StepPoint& point) {
  if (!std::isfinite(point[0] + point[1] + point[2])) return;
  for (int k = 0; k < 3; ++k) {
    min[k] = std::min(min[k], point[k]);
    max[k] = std::max(max[k], point[k]);
  }
}

void StepBox::Add(const StepBox& box) {
  if (box.empty()) return;
  Add(box.min);
  Add(box.max);
}

StepPlacement Then(const StepPlacement& first, const StepPlacement& second) {
  StepPlacement product;
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      product.m[i][j] = 0;
      for (int k = 0; k < 4; ++k) product.m[i][j] += first.m[i][k] * second.m[k][j];
    }
  }
  return product;
}

StepPlacement Inverse(const StepPlacement& placement) {
  const auto row = [&](int i) {
    return StepPoint{{placement.m[i][0], placement.m[i][1], placement.m[i][2]}};
  };
  const StepPoint x = row(0), y = row(1), z = row(2);
  const double volume = Dot(x, Cross(y, z));
  if (!(std::abs(volume) > 1e-300)) return {};
  const StepPoint columns[] = {Cross(y, z), Cross(z, x), Cross(x, y)};
  StepPlacement inverse;
  for (int j = 0; j < 3; ++j) {
    for (int i = 0; i < 3; ++i) inverse.m[i][j] = columns[j][i] / volume;
    inverse.m[3][j] = -Dot(row(3), columns[j]) / volume;
  }
  return inverse;
}

StepPoint Transform(const StepPoint& point, const StepPlacement& placement) {
  StepPoint moved;
  for (int k = 0; k < 3; ++k) {
    moved[k] = point[0] * placement.m[0][k] + point[1] * placement.m[1][k] +
               point[2] * placement.m[2][k] + placement.m[3][k];
  }
  return moved;
}

StepBox Transform(const StepBox& box, const StepPlacement& placement) {
  StepBox moved;
  if (box.empty()) return moved;
  for (int corner = 0; corner < 8; ++corner) {
    StepPoint point;
    for (int k = 0; k < 3; ++k) point[k] = (corner >> k & 1 ? box.max : box.min)[k];
    moved.Add(Transform(point, placement));
  }
  return moved;
}

double StepUnits::ScaleOf(const StepRecord& representation) {
  const StepRecord* context =
      file_.Arguments(representation, "REPRESENTATION").OptionalReference(2);
  if (context == nullptr) {
    guessed_ = true;
    return 1;
  }
  const auto [place, added] = scales_.try_emplace(context, 1);
  if (added) place->second = ReadContext(*context);
  return place->second;
}

double StepUnits::ReadContext(const StepRecord& context) {
  constexpr std::string_view kUnits = "GLOBAL_UNIT_ASSIGNED_CONTEXT";
  if (file_.TypeOf(context).Has(kUnits)) {
    const bool plain = file_.TypeOf(context).names.size() == 1;
    for (const StepRecord* unit : file_.Arguments(context, kUnits).References(plain ? 2 : 0)) {
      const double scale = ReadUnit(*unit);
      if (scale <= 0) continue;
      KeepName(*unit, scale);
      return scale;
    }
  }
  guessed_ = true;
  return 1;
}

// 0 when `unit` measures no length. An inch is so many of another unit, which may in turn be so
// many of a third.
double StepUnits::ReadUnit(const StepRecord& start) const {
  const StepRecord* unit = &start;
  double factor = 1;
  for (int chain = 0; chain < 8; ++chain) {
    const StepType& type = file_.TypeOf(*unit);
    if (type.Has("SI_UNIT")) {
      const StepArguments values = file_.Arguments(*unit, "SI_UNIT");
      const std::size_t name = values.size() == 3 ? 2 : 1;
      if (values.Enumeration(name) != "METRE") return 0;
      // In this order an inch stays 25.4.
      return factor * (1000 * SiPrefix(values.Enumeration(name - 1)));
    }
    if (!type.Has("CONVERSION_BASED_UNIT")) return 0;
    if (type.names.size() > 1 && !type.Has("LENGTH_UNIT")) return 0;
    const StepRecord& measure = file_.Arguments(*unit, "CONVERSION_BASED_UNIT", 1).Reference(1);
    const StepArguments values = file_.Arguments(measure, "MEASURE_WITH_UNIT");
    factor *= values.Number(0);
    unit = &values.Reference(1);
  }
  return 0;
}

// "millimetre", "metre (1000 mm)"; other units have names of their own.
void StepUnits::KeepName(const StepRecord& unit, double scale) {
  std::string name;
  if (file_.TypeOf(unit).Has("SI_UNIT")) {
    const StepArguments values = file_.Arguments(unit, "SI_UNIT");
    name = std::string(values.Enumeration(values.size() == 3 ? 1 : 0)) + "METRE";
  } else {
    name = file_.Arguments(unit, "CONVERSION_BASED_UNIT", 1).OptionalText(0);
  }
  name = FoldCase(name);
  if (scale != 1) name += " (" + NumberText(scale) + " mm)";
  if (std::find(names_.begin(), names_.end(), name) == names_.end()) names_.push_back(name);
}

StepPoint ReadStepPoint(const StepFile& file, const StepRecord& record, double scale) {
  if (!file.TypeOf(record).Has("CARTESIAN_POINT")) file.Fail(record, "stands where a point is due");
  const std::vector<double> numbers = file.Arguments(record, "CARTESIAN_POINT", 1).Numbers(0);
  StepPoint point{};
  for (std::size_t k = 0; k < std::min<std::size_t>(3, numbers.size()); ++k) {
    point[k] = numbers[k] * scale;
  }
  return point;
}

StepPoint ReadStepDirection(const StepFile& file, const StepRecord* record,
                            const StepPoint& otherwise) {
  if (record == nullptr) return otherwise;
  const std::vector<double> numbers = file.Arguments(*record, "DIRECTION", 1).Numbers(0);
  StepPoint direction{};
  for (std::size_t k = 0; k < std::min<std::size_t>(3, numbers.size()); ++k) {
    direction[k] = numbers[k];
  }
  return Unit(direction, otherwise);
}

StepPlacement ReadStepPlacement(const StepFile& file, const StepRecord& record, double scale) {
  const StepType& type = file.TypeOf(record);
  if (type.Has("CARTESIAN_TRANSFORMATION_OPERATOR_3D")) return ReadOperator(file, record, scale);
  const bool flat = type.Has("AXIS2_PLACEMENT_2D");
  if (!flat && !type.Has("AXIS2_PLACEMENT_3D") && !type.Has("AXIS1_PLACEMENT")) {
    file.Fail(record, "stands where a placement is due");
  }
  const StepArguments values = file.Arguments(record);
  const StepPoint origin = ReadStepPoint(file, values.Reference(1), scale);
  const StepPoint z = flat ? kAxisZ : ReadStepDirection(file, values.OptionalReference(2), kAxisZ);
  const StepPoint wish = ReadStepDirection(file, values.OptionalReference(flat ? 2 : 3), kAxisX);
  const StepPoint x = Upright(wish, z);
  return MakePlacement(x, Cross(z, x), z, origin);
}

}  // namespace wb
