// Compares boxes by the planes of their faces, and sorts what the comparisons say.
#include "workbench/scene/painters_order.h"

#include <algorithm>
#include <cmath>
#include <queue>

#include "workbench/session/extents.h"

namespace wb {
namespace {

constexpr std::size_t kTowards = 2;  // the axis to the viewer
// Faces that are seen from their edge up to this cosine hide nothing.
constexpr double kEdgeOnCosine = 1e-9;
// Boxes that touch are apart by less than this part of their size.
constexpr double kTouching = 1e-7;

double Along(const Point& direction, const Point& point) {
  return direction[0] * point[0] + direction[1] * point[1] + direction[2] * point[2];
}

struct Span {
  double low;
  double high;
};

Span SpanAlong(const Point& direction, const SeenBox& box) {
  Span span{HUGE_VAL, -HUGE_VAL};
  for (const Point& corner : box.corners) {
    const double at = Along(direction, corner);
    span.low = std::min(span.low, at);
    span.high = std::max(span.high, at);
  }
  return span;
}

// The rectangle around a box in the picture, and its nearest corner.
struct Bounds {
  Span x, y, z;
};

Bounds BoundsOf(const SeenBox& box) {
  return {SpanAlong({1, 0, 0}, box), SpanAlong({0, 1, 0}, box), SpanAlong({0, 0, 1}, box)};
}

bool Overlap(const Span& a, const Span& b, double margin) {
  return a.low < b.high - margin && b.low < a.high - margin;
}

enum class Order { kEither, kFirst, kSecond };  // which one is painted first

Order Opposite(Order order) {
  if (order == Order::kEither) return order;
  return order == Order::kFirst ? Order::kSecond : Order::kFirst;
}

// By the planes of the faces of `a`: a box beyond one that looks at the viewer is before `a`.
// `found` tells whether any plane parts them.
Order ByPlanesOf(const SeenBox& a, const SeenBox& b, double margin, bool* found) {
  for (const Point& normal : a.normals) {
    const Span of_a = SpanAlong(normal, a);
    const Span of_b = SpanAlong(normal, b);
    const bool beyond = of_b.low >= of_a.high - margin;
    if (!beyond && of_b.high > of_a.low + margin) continue;
    *found = true;
    if (std::abs(normal[kTowards]) <= kEdgeOnCosine) continue;
    return (normal[kTowards] > 0) == beyond ? Order::kFirst : Order::kSecond;
  }
  return Order::kEither;
}

Order Compare(const SeenBox& a, const SeenBox& b, const Bounds& of_a, const Bounds& of_b,
              double margin) {
  if (!Overlap(of_a.x, of_b.x, margin) || !Overlap(of_a.y, of_b.y, margin)) return Order::kEither;
  bool found = false;
  Order order = ByPlanesOf(a, b, margin, &found);
  if (order == Order::kEither) order = Opposite(ByPlanesOf(b, a, margin, &found));
  if (order != Order::kEither || found) return order;
  if (of_a.z.high == of_b.z.high) return Order::kEither;
  return of_a.z.high < of_b.z.high ? Order::kFirst : Order::kSecond;
}

// Takes the boxes that nothing has to be painted before, the furthest first. Where boxes cover each
// other in a ring, the furthest of them breaks it.
class Sorter {
 public:
  Sorter(const std::vector<SeenBox>& boxes) : later_(boxes.size()), before_(boxes.size()) {
    for (const SeenBox& box : boxes) bounds_.push_back(BoundsOf(box));
    const double margin = kTouching * Size();
    for (std::size_t a = 0; a < boxes.size(); ++a) {
      for (std::size_t b = a + 1; b < boxes.size(); ++b) {
        const Order order = Compare(boxes[a], boxes[b], bounds_[a], bounds_[b], margin);
        if (order == Order::kFirst) Follow(a, b);
        if (order == Order::kSecond) Follow(b, a);
      }
    }
  }

  std::vector<std::size_t> Sorted() {
    for (std::size_t i = 0; i < bounds_.size(); ++i) {
      by_depth_.push_back(i);
      if (before_[i] == 0) free_.push(Entry(i));
    }
    std::ranges::sort(by_depth_, {}, [this](std::size_t i) { return Entry(i).first; });
    while (sorted_.size() < bounds_.size()) Take(free_.empty() ? BreakRing() : TakeFree());
    return std::move(sorted_);
  }

 private:
  using DepthEntry = std::pair<double, std::size_t>;
  DepthEntry Entry(std::size_t i) const { return {bounds_[i].z.high, i}; }

  double Size() const {
    double size = 0;
    for (const Bounds& bounds : bounds_) {
      for (const Span& span : {bounds.x, bounds.y, bounds.z}) {
        size = std::max({size, std::abs(span.low), std::abs(span.high)});
      }
    }
    return size;
  }

  void Follow(std::size_t first, std::size_t second) {
    later_[first].push_back(second);
    ++before_[second];
  }

  std::size_t TakeFree() {
    const std::size_t next = free_.top().second;
    free_.pop();
    return next;
  }

  std::size_t BreakRing() {
    while (before_[by_depth_[next_in_depth_]] == kTaken) ++next_in_depth_;
    return by_depth_[next_in_depth_];
  }

  void Take(std::size_t next) {
    if (before_[next] == kTaken) return;
    before_[next] = kTaken;
    sorted_.push_back(next);
    for (const std::size_t follower : later_[next]) {
      if (before_[follower] != kTaken && --before_[follower] == 0) free_.push(Entry(follower));
    }
  }

  static constexpr std::size_t kTaken = static_cast<std::size_t>(-1);

  std::vector<Bounds> bounds_;
  std::vector<std::vector<std::size_t>> later_;
  std::vector<std::size_t> before_;  // how many are still to be painted before each
  std::priority_queue<DepthEntry, std::vector<DepthEntry>, std::greater<>> free_;
  std::vector<std::size_t> by_depth_;
  std::size_t next_in_depth_ = 0;
  std::vector<std::size_t> sorted_;
};

}  // namespace

SeenBox SeenFrom(const Box& box, const Placement& placement) {
  SeenBox seen;
  for (std::size_t i = 0; i < seen.corners.size(); ++i) {
    Point corner;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      corner[axis] = (i >> axis & 1) != 0 ? box.max[axis] : box.min[axis];
    }
    seen.corners[i] = PlacedAt(corner, placement);
  }
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const auto& row = placement[axis];
    const double length = std::hypot(row[0], row[1], row[2]);
    for (std::size_t k = 0; k < 3; ++k) seen.normals[axis][k] = length > 0 ? row[k] / length : 0;
  }
  return seen;
}

std::vector<std::size_t> PaintersOrder(const std::vector<SeenBox>& boxes) {
  return Sorter(boxes).Sorted();
}

}  // namespace wb
