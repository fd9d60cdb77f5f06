// Directions, reaches and texts of boxes.
#include "assembly/components/box_rules.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qm {
namespace {

// Of the numbers themselves; what two ways of computing one coordinate may differ by.
constexpr double kRounding = 1e-9;

// A flat part that is turned may reach less far up than down, by rounding alone.
void PutInOrder(double* lower, double* upper) {
  const double size = std::max({1.0, std::abs(*lower), std::abs(*upper)});
  if (*lower > *upper && *lower - *upper <= kRounding * size) std::swap(*lower, *upper);
}

}  // namespace

std::optional<Vector> DirectionInPart(const Matrix& placement, BoxSide side) {
  const int column = static_cast<int>(side.axis);
  // A point stands on the left of its matrix, so that an axis of the assembly is a column.
  Vector direction = {
      {placement.rows[0][column], placement.rows[1][column], placement.rows[2][column]}};
  const double length = std::hypot(direction.xyz[0], direction.xyz[1], direction.xyz[2]);
  if (!std::isfinite(length) || length == 0.0) return std::nullopt;
  for (double& coordinate : direction.xyz) coordinate /= side.is_upper ? length : -length;
  return direction;
}

double CoordinateOf(const Matrix& placement, BoxSide side, const Vector& point) {
  const int column = static_cast<int>(side.axis);
  double coordinate = 0.0;
  for (int i = 0; i < kAxisCount; ++i) coordinate += point.xyz[i] * placement.rows[i][column];
  return coordinate;
}

bool Reach::Include(BoxSide side, double coordinate) {
  if (!std::isfinite(coordinate)) return false;
  const int axis = static_cast<int>(side.axis);
  if (side.is_upper) {
    upper_[axis] = has_upper_[axis] ? std::max(upper_[axis], coordinate) : coordinate;
    has_upper_[axis] = true;
  } else {
    lower_[axis] = has_lower_[axis] ? std::min(lower_[axis], coordinate) : coordinate;
    has_lower_[axis] = true;
  }
  return true;
}

bool Reach::is_complete() const {
  const auto all = [](const bool(&told)[kAxisCount]) { return told[0] && told[1] && told[2]; };
  return all(has_lower_) && all(has_upper_);
}

bool Reach::AddTo(const Matrix& placement, OutlineBox* box) const {
  double lower[kAxisCount];
  double upper[kAxisCount];
  for (int axis = 0; axis < kAxisCount; ++axis) {
    lower[axis] = lower_[axis] + placement.rows[kAxisCount][axis];
    upper[axis] = upper_[axis] + placement.rows[kAxisCount][axis];
    PutInOrder(&lower[axis], &upper[axis]);
  }
  return box->Include(lower, upper);
}

std::optional<std::wstring> BoxSizes(const OutlineBox& box, const BoxFormat& format) {
  return OutlineText(box.Sizes(), format.decimals, format.is_descending);
}

std::wstring BoxMessage(const OutlineBox& box, const BoxFormat& format, std::wstring_view sizes,
                        std::wstring_view unit, long long left_out, bool is_copied) {
  const auto sides = box.Sizes();
  std::wstring volume = FixedNumberText(sides[0] * sides[1] * sides[2], format.decimals);
  std::wstring text = L"\t尺寸：";
  text.append(sizes);
  if (!unit.empty()) text.append(L" ").append(unit);
  text += L"\n\t体积：" + volume;
  if (!unit.empty()) text.append(L" ").append(unit).append(L"³");
  if (left_out > 0) text += L"\n\t未计入的元件：" + std::to_wstring(left_out);
  if (is_copied) text += L"\n\t已复制到剪贴板";
  return text + L"\t";
}

}  // namespace qm
