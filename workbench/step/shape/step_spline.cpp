// Reading and evaluating B-splines.
#include "workbench/step/shape/step_spline.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace wb {
namespace {

constexpr std::size_t kHighestDegree = 25;

StepPole Mix(const StepPole& a, const StepPole& b, double share) {
  return {a.point * (1 - share) + b.point * share, a.weight * (1 - share) + b.weight * share};
}

StepPoint Divided(const StepPole& pole) {
  return std::abs(pole.weight) > 1e-300 ? pole.point * (1 / pole.weight) : pole.point;
}

bool Usable(const StepKnots& knots, std::size_t poles) {
  return knots.degree >= 1 && knots.degree <= kHighestDegree && poles > knots.degree &&
         knots.knots.size() == poles + knots.degree + 1 &&
         std::is_sorted(knots.knots.begin(), knots.knots.end()) && knots.first() < knots.last();
}

// Splines without written knots: `kind` says how they are spaced.
std::vector<double> ImpliedKnots(const StepType& type, std::string_view kind, std::size_t degree,
                                 std::size_t poles) {
  const std::string suffix(kind);
  const std::size_t count = poles + degree + 1;
  std::vector<double> knots(count);
  const double last = static_cast<double>(poles) - static_cast<double>(degree);
  for (std::size_t i = 0; i < count; ++i) {
    const double even = static_cast<double>(i) - static_cast<double>(degree);
    knots[i] = even;
    if (type.Has("BEZIER_" + suffix) && degree > 0) {
      const std::size_t step = i == 0 ? 0 : (i - 1) / degree;
      knots[i] = static_cast<double>(std::min(step, (poles - 1) / degree));
    } else if (!type.Has("UNIFORM_" + suffix)) {
      knots[i] = std::clamp(even, 0.0, last);
    }
  }
  return knots;
}

std::vector<double> Repeated(const std::vector<double>& knots, const std::vector<double>& times) {
  std::vector<double> repeated;
  for (std::size_t i = 0; i < std::min(knots.size(), times.size()); ++i) {
    const double count = std::clamp(times[i], 0.0, double(kHighestDegree + 1));
    repeated.insert(repeated.end(), static_cast<std::size_t>(count), knots[i]);
  }
  return repeated;
}

std::size_t ReadDegree(const StepArguments& values, std::size_t index) {
  return static_cast<std::size_t>(std::clamp(values.Number(index), 0.0, 100.0));
}

std::vector<StepPole> ReadPoles(const StepFile& file, const StepArguments& values,
                                std::size_t index, double scale) {
  std::vector<StepPole> poles;
  for (const StepRecord* point : values.References(index)) {
    poles.push_back({ReadStepPoint(file, *point, scale), 1});
  }
  return poles;
}

void FlattenNumbers(const StepValue& value, std::vector<double>& numbers) {
  for (const StepValue& item : value.items) {
    if (item.kind == StepValue::Kind::kNumber) numbers.push_back(item.number);
    FlattenNumbers(item, numbers);
  }
}

// False when the weights do not match the poles.
bool ApplyWeights(const StepFile& file, const StepRecord& record, std::string_view entity,
                  std::vector<StepPole>& poles) {
  if (!file.TypeOf(record).Has(entity)) return true;
  const StepArguments values = file.Arguments(record, entity);
  std::vector<double> weights;
  FlattenNumbers(values.At(values.size() - 1), weights);
  if (weights.size() != poles.size()) return false;
  for (std::size_t i = 0; i < poles.size(); ++i) {
    poles[i] = {poles[i].point * weights[i], weights[i]};
  }
  return true;
}

}  // namespace

std::vector<double> StepKnots::Steps(std::size_t steps) const {
  std::vector<double> parameters{first()};
  for (std::size_t i = degree; i + degree + 1 < knots.size(); ++i) {
    const double span = knots[i + 1] - knots[i];
    for (std::size_t k = 1; span > 0 && k <= steps; ++k) {
      parameters.push_back(knots[i] + span * static_cast<double>(k) / static_cast<double>(steps));
    }
  }
  return parameters;
}

// de Boor's scheme.
StepPole StepKnots::Evaluate(const StepPole* poles, double parameter) const {
  const auto begin = knots.begin() + static_cast<std::ptrdiff_t>(degree);
  const auto end = knots.end() - static_cast<std::ptrdiff_t>(degree) - 1;
  parameter = std::clamp(parameter, first(), last());
  auto above = std::upper_bound(begin, end, parameter);
  while (above != begin + 1 && *(above - 1) == *end) --above;  // the very last parameter
  const auto span = static_cast<std::size_t>(above - knots.begin()) - 1;
  std::array<StepPole, kHighestDegree + 1> work;
  for (std::size_t j = 0; j <= degree; ++j) work[j] = poles[span - degree + j];
  for (std::size_t level = 1; level <= degree; ++level) {
    for (std::size_t j = degree; j >= level; --j) {
      const double low = knots[span - degree + j];
      const double width = knots[span + j + 1 - level] - low;
      work[j] = Mix(work[j - 1], work[j], width > 0 ? (parameter - low) / width : 0);
    }
  }
  return work[degree];
}

StepPoint StepSplineCurve::At(double parameter) const {
  return Divided(knots.Evaluate(poles.data(), parameter));
}

std::vector<StepPoint> StepSplineSurface::Grid(const std::vector<double>& us,
                                               const std::vector<double>& vs) const {
  std::vector<StepPoint> points(us.size() * vs.size());
  std::vector<StepPole> across(rows);
  for (std::size_t j = 0; j < vs.size(); ++j) {
    for (std::size_t row = 0; row < rows; ++row) {
      across[row] = v.Evaluate(poles.data() + row * columns, vs[j]);
    }
    for (std::size_t i = 0; i < us.size(); ++i) {
      points[i * vs.size() + j] = Divided(u.Evaluate(across.data(), us[i]));
    }
  }
  return points;
}

std::optional<StepSplineCurve> ReadStepSplineCurve(const StepFile& file, const StepRecord& record,
                                                   double scale) {
  const StepType& type = file.TypeOf(record);
  StepSplineCurve curve;
  const StepArguments values = file.Arguments(record, "B_SPLINE_CURVE", 1);
  curve.knots.degree = ReadDegree(values, 0);
  curve.poles = ReadPoles(file, values, 1, scale);
  if (type.Has("B_SPLINE_CURVE_WITH_KNOTS")) {
    const StepArguments knots = file.Arguments(record, "B_SPLINE_CURVE_WITH_KNOTS", 6);
    curve.knots.knots = Repeated(knots.Numbers(1), knots.Numbers(0));
  } else {
    curve.knots.knots = ImpliedKnots(type, "CURVE", curve.knots.degree, curve.poles.size());
  }
  const bool weighted = ApplyWeights(file, record, "RATIONAL_B_SPLINE_CURVE", curve.poles);
  if (!weighted || !Usable(curve.knots, curve.poles.size())) return std::nullopt;
  return curve;
}

std::optional<StepSplineSurface> ReadStepSplineSurface(const StepFile& file,
                                                       const StepRecord& record, double scale) {
  const StepType& type = file.TypeOf(record);
  StepSplineSurface surface;
  const StepArguments values = file.Arguments(record, "B_SPLINE_SURFACE", 1);
  surface.u.degree = ReadDegree(values, 0);
  surface.v.degree = ReadDegree(values, 1);
  surface.rows = values.At(2).items.size();
  surface.poles = ReadPoles(file, values, 2, scale);
  if (surface.rows == 0 || surface.poles.size() % surface.rows != 0) return std::nullopt;
  surface.columns = surface.poles.size() / surface.rows;
  if (type.Has("B_SPLINE_SURFACE_WITH_KNOTS")) {
    const StepArguments knots = file.Arguments(record, "B_SPLINE_SURFACE_WITH_KNOTS", 8);
    surface.u.knots = Repeated(knots.Numbers(2), knots.Numbers(0));
    surface.v.knots = Repeated(knots.Numbers(3), knots.Numbers(1));
  } else {
    surface.u.knots = ImpliedKnots(type, "SURFACE", surface.u.degree, surface.rows);
    surface.v.knots = ImpliedKnots(type, "SURFACE", surface.v.degree, surface.columns);
  }
  const bool weighted = ApplyWeights(file, record, "RATIONAL_B_SPLINE_SURFACE", surface.poles);
  const bool usable =
      Usable(surface.u, surface.rows) && Usable(surface.v, surface.columns) && weighted;
  return usable ? std::optional(std::move(surface)) : std::nullopt;
}

}  // namespace wb
