// Snaps views.
#include "frame/geometry/normal_view_rules.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qm {
namespace {

// By this much a component must be larger to be chosen before an earlier one.
constexpr double kLarger = 1e-8;
// By this much a row must have less of an axis to be the one that gives it up; otherwise it is the
// later row.
constexpr double kSmaller = 1e-5;

using Row = double[4];
// Axis that each row takes.
using Choice = std::array<int, kAxisCount>;

int LargestComponent(const Row& row) {
  int largest = 0;
  for (int axis = 1; axis < kAxisCount; ++axis) {
    if (std::fabs(row[axis]) > std::fabs(row[largest]) + kLarger) largest = axis;
  }
  return largest;
}

// An axis that no row takes; the first of them.
int FreeAxis(const Choice& choice) {
  int axis = 0;
  while (std::ranges::find(choice, axis) != choice.end()) ++axis;
  return axis;
}

// Two rows that took the same axis: one of them gives it up.
void GiveUpAxis(const Matrix& unit, int first, int second, Choice& choice) {
  const int axis = choice[first];
  const double more = std::fabs(unit.rows[second][axis]) - std::fabs(unit.rows[first][axis]);
  choice[more > kSmaller ? first : second] = FreeAxis(choice);
}

Choice ChooseAxes(const Matrix& unit) {
  Choice choice;
  for (int row = 0; row < kAxisCount; ++row) choice[row] = LargestComponent(unit.rows[row]);
  for (int first = 0; first < kAxisCount; ++first) {
    for (int second = first + 1; second < kAxisCount; ++second) {
      if (choice[first] == choice[second]) GiveUpAxis(unit, first, second, choice);
    }
  }
  return choice;
}

}  // namespace

std::optional<Matrix> NormalView(const Matrix& view) {
  const auto unit = Normalised(view);
  if (!unit) return std::nullopt;
  const Choice choice = ChooseAxes(*unit);
  Matrix snapped = Identity();
  for (int row = 0; row < kAxisCount; ++row) {
    for (int axis = 0; axis < kAxisCount; ++axis) {
      const double sign = std::copysign(1.0, unit->rows[row][axis]);
      snapped.rows[row][axis] = axis == choice[row] ? sign : 0.0;
    }
  }
  const double scale = std::hypot(view.rows[0][0], view.rows[0][1], view.rows[0][2]);
  for (int axis = 0; axis < kAxisCount; ++axis) {
    snapped.rows[3][axis] = view.rows[3][axis] / scale;
  }
  return snapped;
}

}  // namespace qm
