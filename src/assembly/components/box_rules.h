// Boxes around parts that stand somewhere in an assembly, and what is told of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/geometry/matrix_rules.h"
#include "frame/text/outline_rules.h"

namespace qm {

// A direction of the assembly, along or against one of its axes.
struct BoxSide {
  Axis axis;
  bool is_upper;  // the side where the coordinate is largest
};
inline constexpr BoxSide kBoxSides[] = {
    {Axis::kX, false}, {Axis::kX, true},  {Axis::kY, false},
    {Axis::kY, true},  {Axis::kZ, false}, {Axis::kZ, true},
};

struct Vector {
  double xyz[3];
};

// The direction outwards of a side as a part sees it that is placed so; of length 1, whatever the
// scale of the placement. Nothing where the placement has no such direction.
std::optional<Vector> DirectionInPart(const Matrix& placement, BoxSide side);

// Where a point of the part lies along the side's axis in the assembly, its shift left out.
double CoordinateOf(const Matrix& placement, BoxSide side, const Vector& point);

// How far a part reaches along the axes when it is turned as it is placed, seen from its origin.
class Reach {
 public:
  // False for what is no number.
  bool Include(BoxSide side, double coordinate);
  // Nothing when no surface was included on some side.
  bool is_complete() const;
  // Widens the box by the part at its place.
  bool AddTo(const Matrix& placement, OutlineBox* box) const;

 private:
  double lower_[kAxisCount] = {};
  double upper_[kAxisCount] = {};
  bool has_lower_[kAxisCount] = {};
  bool has_upper_[kAxisCount] = {};
};

struct BoxFormat {
  int decimals;
  bool is_descending;
};

// Sizes with "×" between them, as the clipboard gets them. Nothing when one is no number.
std::optional<std::wstring> BoxSizes(const OutlineBox& box, const BoxFormat& format);

// The text for the user: sizes and volume with the unit of lengths, which may be empty; a line for
// what is not in the box, if anything; the sizes' way to the clipboard, if they are there.
std::wstring BoxMessage(const OutlineBox& box, const BoxFormat& format, std::wstring_view sizes,
                        std::wstring_view unit, long long left_out, bool is_copied);

}  // namespace qm
