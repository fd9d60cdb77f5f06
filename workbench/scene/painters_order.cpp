// Compares boxes by the planes of their faces, and sorts what the comparisons say.
#include "workbench/scene/painters_order.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>
#include <tuple>

#include "workbench/session/extents.h"

namespace wb {
namespace {

constexpr std::size_t kTowards = 2;  // the axis to the viewer
// Faces that are seen from their edge up to this cosine hide nothing.
constexpr double kEdgeOnCosine = 1e-9;
// Boxes that lie in each other by less than this part of the thinner one hardly do so at all.
constexpr double kHardlyInside = 0.2;
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

// Which of two boxes is painted first, and whether that is certain: of boxes that lie deep in each
// other neither is right.
struct Judgement {
  Order order = Order::kEither;
  bool is_sure = true;
};

double Middle(const Span& span) {
  return (span.low + span.high) / 2;
}

bool Holds(const Span& outer, const Span& inner) {
  return outer.low <= inner.low && inner.high <= outer.high;
}

// Of boxes that lie in each other as if they touched where they do so least, as a motor stands on a
// tray whose rim reaches beside it. Where one holds the other along each axis, by their nearest
// corners.
Judgement Guess(const SeenBox& a, const SeenBox& b, const Bounds& of_a, const Bounds& of_b) {
  Judgement judged{of_a.z.high < of_b.z.high ? Order::kFirst : Order::kSecond, false};
  double least = HUGE_VAL;
  for (const auto* const normals : {&a.normals, &b.normals}) {
    for (const Point& normal : *normals) {
      const Span in_a = SpanAlong(normal, a);
      const Span in_b = SpanAlong(normal, b);
      const double depth = std::min(in_a.high, in_b.high) - std::max(in_a.low, in_b.low);
      const bool says_nothing =
          std::abs(normal[kTowards]) <= kEdgeOnCosine || Holds(in_a, in_b) || Holds(in_b, in_a);
      if (says_nothing || depth >= least) continue;
      least = depth;
      const bool is_b_nearer = (normal[kTowards] > 0) == (Middle(in_b) > Middle(in_a));
      const double thinner = std::min(in_a.high - in_a.low, in_b.high - in_b.low);
      judged = {is_b_nearer ? Order::kFirst : Order::kSecond, depth <= kHardlyInside * thinner};
    }
  }
  return judged;
}

Judgement Compare(const SeenBox& a, const SeenBox& b, const Bounds& of_a, const Bounds& of_b,
                  double margin) {
  if (!Overlap(of_a.x, of_b.x, margin) || !Overlap(of_a.y, of_b.y, margin)) return {};
  bool found = false;
  Order order = ByPlanesOf(a, b, margin, &found);
  if (order == Order::kEither) order = Opposite(ByPlanesOf(b, a, margin, &found));
  if (order != Order::kEither || found) return {order, true};
  return Guess(a, b, of_a, of_b);
}

// Which boxes come behind which.
struct Sequence {
  explicit Sequence(std::size_t count) : later(count), earlier(count), waits_for(count) {}
  void Add(std::size_t first, std::size_t second) {
    later[first].push_back(second);
    earlier[second].push_back(first);
    ++waits_for[second];
  }
  std::vector<std::vector<std::size_t>> later;
  std::vector<std::vector<std::size_t>> earlier;
  std::vector<std::size_t> waits_for;  // how many are still to be painted before each
};

// Takes the boxes that nothing has to be painted before, the furthest first. What is certain is
// kept above what is not: a shaft in its casing must not bring a plate below them in front of both.
// Where boxes cover each other in a ring, the furthest in the ring breaks it.
class Sorter {
 public:
  explicit Sorter(const std::vector<SeenBox>& boxes)
      : sure_(boxes.size()), guessed_(boxes.size()), is_taken_(boxes.size()) {
    for (const SeenBox& box : boxes) bounds_.push_back(BoundsOf(box));
    const double margin = kTouching * Size();
    for (std::size_t a = 0; a < boxes.size(); ++a) {
      for (std::size_t b = a + 1; b < boxes.size(); ++b) {
        const auto [order, is_sure] = Compare(boxes[a], boxes[b], bounds_[a], bounds_[b], margin);
        Sequence& sequence = is_sure ? sure_ : guessed_;
        if (order == Order::kFirst) sequence.Add(a, b);
        if (order == Order::kSecond) sequence.Add(b, a);
      }
    }
  }

  std::vector<std::size_t> Sorted() {
    for (std::size_t i = 0; i < bounds_.size(); ++i) Offer(i);
    while (sorted_.size() < bounds_.size()) Take(free_.empty() ? RingBreaker() : TakeFree());
    return std::move(sorted_);
  }

 private:
  double Depth(std::size_t i) const { return bounds_[i].z.high; }

  double Size() const {
    double size = 0;
    for (const Bounds& bounds : bounds_) {
      for (const Span& span : {bounds.x, bounds.y, bounds.z}) {
        size = std::max({size, std::abs(span.low), std::abs(span.high)});
      }
    }
    return size;
  }

  // Into the queue, where nothing certain stands before it.
  void Offer(std::size_t i) {
    if (is_taken_[i] || sure_.waits_for[i] != 0) return;
    free_.push({guessed_.waits_for[i] != 0, Depth(i), i});
  }

  // One that has been offered twice is taken at the better place.
  std::size_t TakeFree() {
    const std::size_t next = std::get<2>(free_.top());
    free_.pop();
    return next;
  }

  std::size_t FurthestLeft() const {
    std::size_t furthest = bounds_.size();
    for (std::size_t i = 0; i < bounds_.size(); ++i) {
      if (is_taken_[i]) continue;
      if (furthest == bounds_.size() || Depth(i) < Depth(furthest)) furthest = i;
    }
    return furthest;
  }

  std::size_t OneBefore(std::size_t i) const {
    return *std::ranges::find_if(sure_.earlier[i],
                                 [this](std::size_t before) { return !is_taken_[before]; });
  }

  // Everything left waits for something: going back from any of them ends in a ring.
  std::size_t RingBreaker() const {
    std::vector<bool> is_met(bounds_.size());
    std::size_t at = FurthestLeft();
    for (; !is_met[at]; at = OneBefore(at)) is_met[at] = true;
    std::size_t furthest = at;
    for (std::size_t i = OneBefore(at); i != at; i = OneBefore(i)) {
      if (Depth(i) < Depth(furthest)) furthest = i;
    }
    return furthest;
  }

  void Take(std::size_t next) {
    if (is_taken_[next]) return;
    is_taken_[next] = true;
    sorted_.push_back(next);
    for (Sequence* const sequence : {&sure_, &guessed_}) {
      for (const std::size_t follower : sequence->later[next]) {
        if (--sequence->waits_for[follower] == 0) Offer(follower);
      }
    }
  }

  // Whether a guess stands before it, and how near it comes to the viewer.
  using FreeBox = std::tuple<bool, double, std::size_t>;

  std::vector<Bounds> bounds_;
  Sequence sure_;
  Sequence guessed_;
  std::vector<bool> is_taken_;
  std::priority_queue<FreeBox, std::vector<FreeBox>, std::greater<>> free_;
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
