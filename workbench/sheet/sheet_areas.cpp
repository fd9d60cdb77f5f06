// Measures what lies on a sheet.
#include "workbench/sheet/sheet_areas.h"

#include <algorithm>
#include <cmath>

namespace wb {
namespace {

constexpr double kFurthest = 1e6;
constexpr double kNarrowest = 0.58;  // width of a Latin letter, in letters

double Sum(const std::vector<double>& lengths) {
  double sum = 0;
  for (const double length : lengths) sum += length;
  return sum;
}

bool Overlap(const Outline& a, const Outline& b) {
  return a[0] < b[2] && b[0] < a[2] && a[1] < b[3] && b[1] < a[3];
}

}  // namespace

double WidthOf(const std::string& text) {
  double width = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) width += kNarrowest;
    if (byte >= 0xC0) width += byte >= 0xE0 ? 1 : kNarrowest;
  }
  return width;
}

double WidthOf(const TextLine& line) {
  const double limits = kLimitLetters * std::max(WidthOf(line.upper), WidthOf(line.lower));
  return WidthOf(line.text) + limits + WidthOf(line.rest);
}

Outline AreaOf(const TablePicture& table) {
  return {table.place[0], table.place[1] - Sum(table.heights), table.place[0] + Sum(table.widths),
          table.place[1]};
}

Outline AreaOf(const std::vector<ShownFace>& faces) {
  Outline area = {HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
  for (const ShownFace& face : faces) {
    for (const SheetPoint& at : face) {
      area = {std::min(area[0], at[0]), std::min(area[1], at[1]), std::max(area[2], at[0]),
              std::max(area[3], at[1])};
    }
  }
  return area;
}

bool IsCoveredInPart(const ViewPicture& view, std::size_t box) {
  const Outline area = AreaOf(view.boxes[box].front);
  return std::any_of(
      view.boxes.begin() + static_cast<std::ptrdiff_t>(box) + 1, view.boxes.end(),
      [&](const ShownBoxFaces& later) { return Overlap(area, AreaOf(later.front)); });
}

bool IsNear(const Outline& area) {
  return std::ranges::all_of(area, [](double at) { return std::abs(at) < kFurthest; });
}

}  // namespace wb
