// The numbers of an appearance: what they may be, and how the transparency switches change them.
#pragma once

#include <array>

namespace qm {

// In the order of the host's record.
struct AppearanceNumbers {
  std::array<double, 3> colour;
  double ambient;
  double diffuse;
  double highlight;
  double shininess;
  double transparency;
  std::array<double, 3> highlight_colour;
  double reflection;
};

// The host's grey, which is how a model without an appearance of its own looks. A record of zeroes
// in its place would paint it black.
inline constexpr AppearanceNumbers kDefaultAppearance = {{0.6, 0.6, 0.6}, 0.6, 0.9, 0.6, 0.6, 0.0,
                                                         {1.0, 1.0, 1.0}, 0.3};
// What every coloured model gets besides its colour.
inline constexpr AppearanceNumbers kColouredAppearance = {{0.0, 0.0, 0.0}, 0.6, 0.9, 0.6, 0.6, 0.0,
                                                          {1.0, 1.0, 1.0}, 0.3};

// Whether the host has filled nothing in.
bool IsUntouched(const AppearanceNumbers& numbers);
// Whether they can be an appearance: all but the reflection lie from 0 to 1. Others mean that the
// host's record has another order than ours.
bool AreAppearance(const AppearanceNumbers& numbers);

// The other state of a model: see-through below 0.2, opaque from there on.
double SwitchedModelTransparency(double transparency);
// Of a surface: opaque when it is clear but for 0.05, clear otherwise. In doubles 0.95 lies just
// beyond that, and becomes clear.
double SwitchedSurfaceTransparency(double transparency);

}  // namespace qm
