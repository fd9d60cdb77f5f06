// Turns in space.
#include "workbench/session/rotation.h"

#include <cmath>
#include <numbers>

namespace wb {
namespace {

constexpr double kTolerance = 1e-6;

// Sine and cosine, without the rounding of quarter turns.
struct Turn {
  double sine;
  double cosine;
};
Turn TurnBy(double degrees) {
  const double quarters = degrees / 90;
  if (quarters == std::round(quarters)) {
    constexpr Turn kQuarters[] = {{0, 1}, {1, 0}, {0, -1}, {-1, 0}};
    return kQuarters[static_cast<size_t>(static_cast<long long>(quarters) & 3)];
  }
  const double angle = degrees * std::numbers::pi / 180;
  return {std::sin(angle), std::cos(angle)};
}

double Dot(const std::array<double, 3>& a, const std::array<double, 3>& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

}  // namespace

Rotation TurnAbout(ScreenAxis axis, double degrees) {
  const Turn turn = TurnBy(degrees);
  const size_t along = static_cast<size_t>(axis);
  const size_t from = (along + 1) % 3;
  const size_t to = (along + 2) % 3;
  Rotation rotation{};
  rotation[along][along] = 1;
  rotation[from][from] = rotation[to][to] = turn.cosine;
  rotation[from][to] = turn.sine;
  rotation[to][from] = 0.0 - turn.sine;
  return rotation;
}

Rotation Turned(const Rotation& first, const Rotation& second) {
  Rotation product{};
  for (size_t row = 0; row < 3; ++row) {
    for (size_t column = 0; column < 3; ++column) {
      // From 0 on, so that no zero is a negative one.
      for (size_t k = 0; k < 3; ++k) product[row][column] += first[row][k] * second[k][column];
    }
  }
  return product;
}

bool IsRotation(const Rotation& rotation) {
  for (size_t i = 0; i < 3; ++i) {
    for (size_t k = i; k < 3; ++k) {
      const double wanted = i == k ? 1 : 0;
      if (!(std::abs(Dot(rotation[i], rotation[k]) - wanted) <= kTolerance)) return false;
    }
  }
  return true;
}

}  // namespace wb
