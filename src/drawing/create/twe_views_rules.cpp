// Twelve views: names, turns and places.
#include "drawing/create/twe_views_rules.h"

#include <algorithm>

#include "toolkit/numbers.h"

namespace qm {
namespace {

constexpr wchar_t kNameEnd[] = L"-12";
constexpr size_t kNameLimit = PRO_NAME_SIZE - 1;
constexpr size_t kShortNameStart = 8;

// Below this a view counts as square.
constexpr double kHigher = 0.001;

constexpr double kSpace = 50;         // between neighbouring views
constexpr double kBetweenSets = 200;  // from the first set to the second

constexpr Axis kX[] = {Axis::kX};
constexpr Axis kY[] = {Axis::kY};
constexpr Axis kZ[] = {Axis::kZ};
constexpr Axis kZThenX[] = {Axis::kZ, Axis::kX};
constexpr Axis kXThenZ[] = {Axis::kX, Axis::kZ};

}  // namespace

std::wstring TweViewsDrawingName(std::wstring_view model_name) {
  const std::wstring name = std::wstring(model_name) + kNameEnd;
  return name.size() <= kNameLimit ? name : name.substr(0, kShortNameStart) + kNameEnd;
}

// The comparisons stand in this order on purpose: extents that are equal get the turns of the first
// line that lets them in.
std::span<const Axis> TurnsByExtents(int dx, int dy, int dz) {
  if (dy <= dx && dz <= dy) return {};
  if (dx < dz) {
    if (dy <= dz && dx <= dy) return kY;
  } else if (dz >= dy) {
    return kX;
  }
  if (dz < dx || dx < dy) {
    if (dz <= dy && dx <= dz) return kZThenX;
    if (dy < dx || dx < dz) return {};
    return kZ;
  }
  return kXThenZ;
}

// A square view turns when it is to stand upright, and stays when it is to lie.
bool MainViewWantsTurn(std::string_view direction, double width, double height) {
  const double higher_by = height - width;
  if (direction == "main-h") return higher_by > kHigher;
  return direction == "main-v" && higher_by < kHigher;
}

SheetBox MovedBy(const SheetBox& box, SheetPoint by) {
  return {box.x1 + by.x, box.y1 + by.y, box.x2 + by.x, box.y2 + by.y};
}

SheetBox QuarterTurned(const SheetBox& box) {
  const auto [x, y] = box.Centre();
  const double across = box.Height() / 2;
  const double up = box.Width() / 2;
  return {x - across, y - up, x + across, y + up};
}

std::span<const ProjectionRow, kProjectedViews> Projections() {
  static constexpr ProjectionRow kRows[] = {
      {SetView::k1, SetView::kMain, Side::kBelow}, {SetView::k2, SetView::kMain, Side::kAbove},
      {SetView::k3, SetView::kMain, Side::kLeft},  {SetView::k4, SetView::kMain, Side::kRight},
      {SetView::k5, SetView::k4, Side::kRight},
  };
  return kRows;
}

SheetPoint ProjectionPoint(Side side, const SheetBox& parent, SheetPoint main_centre) {
  switch (side) {
    case Side::kBelow:
      return {main_centre.x, parent.y1 - parent.Height()};
    case Side::kAbove:
      return {main_centre.x, parent.y2 + parent.Height()};
    case Side::kLeft:
      return {parent.x1 - parent.Width(), main_centre.y};
    case Side::kRight:
      break;
  }
  return {parent.x2 + parent.Width(), main_centre.y};
}

SheetPoint ProjectionMove(Side side, const SheetBox& parent, const SheetBox& made) {
  switch (side) {
    case Side::kBelow:
      return {0, parent.y1 - made.y2 - kSpace};
    case Side::kAbove:
      return {0, parent.y2 - made.y1 + kSpace};
    case Side::kLeft:
      return {parent.x1 - made.x2 - kSpace, 0};
    case Side::kRight:
      break;
  }
  return {parent.x2 - made.x1 + kSpace, 0};
}

SheetPoint PictorialPoint(const SheetBox& view1) {
  return {view1.x2, view1.y1};
}

SheetPoint PictorialMove(const SheetBox& view1, const SheetBox& pictorial) {
  return {(pictorial.x2 - view1.x1) / 2 + kSpace, -(pictorial.y2 - view1.y1) / 2 - kSpace};
}

SheetPoint SecondMainViewPoint(const SheetBox& main, const SheetBox& view3, const SheetBox& view5,
                               const SheetBox& pictorial) {
  const double right_edge = std::max(view5.x2, pictorial.x2);
  return {main.Width() / 2 + right_edge + view3.Width() + kBetweenSets, main.Centre().y};
}

}  // namespace qm
