// Turns in space: of what a window shows, and of the views of drawings.
#pragma once

#include <array>

namespace wb {

// Rows are the model's axes as the screen or the sheet shows them: x to the right, y up, z towards
// who looks at it.
using Rotation = std::array<std::array<double, 3>, 3>;
inline constexpr Rotation kNoRotation = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

enum class ScreenAxis { kX = 0, kY = 1, kZ = 2 };

// Counter-clockwise as seen from the axis' tip, in degrees; exact for quarter turns.
Rotation TurnAbout(ScreenAxis axis, double degrees);

// `first`, and then `second` about the axes of the screen.
Rotation Turned(const Rotation& first, const Rotation& second);

// Whether the rows are as long as 1 and stand upright on each other.
bool IsRotation(const Rotation& rotation);

}  // namespace wb
