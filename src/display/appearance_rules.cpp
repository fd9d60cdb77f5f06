// Thresholds and checks.
#include "display/appearance_rules.h"

#include <algorithm>
#include <cmath>

namespace qm {
namespace {

constexpr double kOpaque = 0.0;
constexpr double kSeeThrough = 0.618;
constexpr double kModelThreshold = 0.2;
constexpr double kClear = 1.0;
constexpr double kSurfaceTolerance = 0.05;

// All but the reflection.
std::array<double, 11> Bounded(const AppearanceNumbers& numbers) {
  const auto& [colour, ambient, diffuse, highlight, shininess, transparency, light, reflection] =
      numbers;
  return {colour[0], colour[1],    colour[2], ambient,  diffuse, highlight,
          shininess, transparency, light[0],  light[1], light[2]};
}

}  // namespace

bool IsUntouched(const AppearanceNumbers& numbers) {
  return numbers.reflection == 0 &&
         std::ranges::all_of(Bounded(numbers), [](double number) { return number == 0; });
}

bool AreAppearance(const AppearanceNumbers& numbers) {
  return std::ranges::all_of(Bounded(numbers),
                             [](double number) { return number >= 0 && number <= 1; });
}

double SwitchedModelTransparency(double transparency) {
  return std::abs(transparency - kOpaque) < kModelThreshold ? kSeeThrough : kOpaque;
}

double SwitchedSurfaceTransparency(double transparency) {
  return std::abs(transparency - kClear) > kSurfaceTolerance ? kClear : kOpaque;
}

}  // namespace qm
