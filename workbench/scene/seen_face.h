// The faces of boxes as the viewer sees them: x to the right, y up, z towards him.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "workbench/session/model_link.h"

namespace wb {

// Bit k of a corner's place tells whether it lies at the upper end along axis k.
using SeenBox = std::array<Point, 8>;
SeenBox SeenFrom(const Box& box, const Placement& placement);

struct SeenCorner {
  Point at;
  bool is_edge = true;  // whether the line to the next corner is an edge of the box
};

// A face or what is left of it after cuts, always convex.
struct SeenFace {
  std::size_t box = 0;
  bool is_opaque = true;
  std::vector<SeenCorner> corners;  // counterclockwise in the picture
  Point normal{};                   // of length 1, towards the viewer
  double offset = 0;                // of the plane along the normal
};

// Those that look at the viewer. A flat box has one, a line none.
std::vector<SeenFace> FacesTowardsViewer(const SeenBox& box);

// How far a point is before the plane of a face.
double BeforePlane(const SeenFace& face, const Point& at);

// What lies behind and before the plane of `face`; without corners where nothing does.
struct CutFace {
  SeenFace behind;
  SeenFace before;
};
CutFace CutBy(const SeenFace& piece, const SeenFace& face, double touching);

// Where two faces cover each other in the picture, which of them lies behind the other there. Both
// do where they pass through each other, and none where they touch or have one plane.
struct Covering {
  bool first_is_behind = false;
  bool second_is_behind = false;
  bool hides_one = false;  // nothing of the one behind is seen
};
Covering CoveringOf(const SeenFace& first, const SeenFace& second, double touching);

}  // namespace wb
