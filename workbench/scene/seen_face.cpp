// Plane geometry of convex faces.
#include "workbench/scene/seen_face.h"

#include <algorithm>
#include <cmath>

#include "workbench/session/extents.h"

namespace wb {
namespace {

constexpr std::size_t kTowards = 2;  // the axis to the viewer
// Faces that are seen from their edge up to this cosine hide nothing.
constexpr double kEdgeOnCosine = 1e-6;

Point Minus(const Point& a, const Point& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Point Cross(const Point& a, const Point& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double Dot(const Point& a, const Point& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Point Between(const Point& a, const Point& b, double part) {
  Point point;
  for (std::size_t k = 0; k < 3; ++k) point[k] = a[k] + (b[k] - a[k]) * part;
  return point;
}

// The one of two opposite faces that looks at the viewer. Its normal comes from its edges, so that
// placements that mirror or distort are right as well.
SeenFace FaceAcross(const SeenBox& box, std::size_t axis) {
  const std::size_t u = 1u << (axis + 1) % 3;
  const std::size_t v = 1u << (axis + 2) % 3;
  SeenFace face;
  const Point across = Cross(Minus(box[u], box[0]), Minus(box[v], box[0]));
  const double length = std::sqrt(Dot(across, across));
  if (!(length > 0) || std::abs(across[kTowards]) <= kEdgeOnCosine * length) return face;
  const double sign = across[kTowards] > 0 ? 1 : -1;
  for (std::size_t k = 0; k < 3; ++k) face.normal[k] = sign * across[k] / length;
  const bool is_upper = Dot(Minus(box[1u << axis], box[0]), face.normal) >= 0;
  const std::size_t from = is_upper ? 1u << axis : 0u;
  for (const std::size_t at : {from, from | u, from | u | v, from | v}) {
    face.corners.push_back({box[at]});
  }
  if (sign < 0) std::ranges::reverse(face.corners);
  face.offset = Dot(face.normal, face.corners.front().at);
  return face;
}

SeenFace WithoutCorners(const SeenFace& face) {
  return {face.box, face.is_opaque, {}, face.normal, face.offset};
}

// On which side of a plane a corner lies.
int SideOf(double before, double touching) {
  return before > touching ? 1 : before < -touching ? -1 : 0;
}

// Between a corner and the next one, which lies on the other side.
void AddCut(CutFace& cut, const SeenCorner& corner, const Point& at, bool goes_behind) {
  cut.behind.corners.push_back({at, goes_behind && corner.is_edge});
  cut.before.corners.push_back({at, !goes_behind && corner.is_edge});
}

using FlatPoint = std::array<double, 2>;

// How far a point lies inside the line that goes on from a corner.
class Border {
 public:
  Border(const Point& from, const Point& to)
      : from_(from), way_(Minus(to, from)), length_(std::hypot(way_[0], way_[1])) {}
  bool IsPoint(double touching) const { return length_ <= touching; }
  double Inside(double x, double y) const {
    return (way_[0] * (y - from_[1]) - way_[1] * (x - from_[0])) / length_;
  }

 private:
  Point from_;
  Point way_;
  double length_;
};

template <typename Visit>
void ForEachBorder(const SeenFace& face, double touching, const Visit& visit) {
  for (std::size_t i = 0; i < face.corners.size(); ++i) {
    const Border border(face.corners[i].at, face.corners[(i + 1) % face.corners.size()].at);
    if (!border.IsPoint(touching)) visit(border);
  }
}

// What of `region` lies further inside a border than where things touch. `kept` is a place for it.
void KeepInside(std::vector<FlatPoint>& region, std::vector<FlatPoint>& kept, const Border& border,
                double touching) {
  kept.clear();
  for (std::size_t i = 0; i < region.size(); ++i) {
    const FlatPoint& at = region[i];
    const FlatPoint& next = region[(i + 1) % region.size()];
    const double inside = border.Inside(at[0], at[1]) - touching;
    const double next_inside = border.Inside(next[0], next[1]) - touching;
    if (inside > 0) kept.push_back(at);
    if ((inside > 0) == (next_inside > 0)) continue;
    const double part = inside / (inside - next_inside);
    kept.push_back({at[0] + (next[0] - at[0]) * part, at[1] + (next[1] - at[1]) * part});
  }
  region.swap(kept);
}

std::vector<FlatPoint> CommonRegion(const SeenFace& a, const SeenFace& b, double touching) {
  std::vector<FlatPoint> region, kept;
  region.reserve(a.corners.size() + b.corners.size());
  kept.reserve(a.corners.size() + b.corners.size());
  for (const SeenCorner& corner : a.corners) region.push_back({corner.at[0], corner.at[1]});
  ForEachBorder(b, touching, [&](const Border& border) {
    if (!region.empty()) KeepInside(region, kept, border, touching);
  });
  return region;
}

double DepthAt(const SeenFace& face, const FlatPoint& at) {
  return (face.offset - face.normal[0] * at[0] - face.normal[1] * at[1]) / face.normal[kTowards];
}

bool LiesWithin(const SeenFace& inner, const SeenFace& outer, double touching) {
  bool is_within = true;
  ForEachBorder(outer, touching, [&](const Border& border) {
    is_within = is_within && std::ranges::all_of(inner.corners, [&](const SeenCorner& corner) {
                  return border.Inside(corner.at[0], corner.at[1]) >= -touching;
                });
  });
  return is_within;
}

}  // namespace

SeenBox SeenFrom(const Box& box, const Placement& placement) {
  SeenBox seen;
  for (std::size_t i = 0; i < seen.size(); ++i) {
    seen[i] = PlacedAt(CornerOf(box, static_cast<unsigned>(i)), placement);
  }
  return seen;
}

std::vector<SeenFace> FacesTowardsViewer(const SeenBox& box) {
  std::vector<SeenFace> faces;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    SeenFace face = FaceAcross(box, axis);
    if (!face.corners.empty()) faces.push_back(std::move(face));
  }
  return faces;
}

double BeforePlane(const SeenFace& face, const Point& at) {
  return Dot(face.normal, at) - face.offset;
}

CutFace CutBy(const SeenFace& piece, const SeenFace& face, double touching) {
  CutFace cut{WithoutCorners(piece), WithoutCorners(piece)};
  for (std::size_t i = 0; i < piece.corners.size(); ++i) {
    const SeenCorner& corner = piece.corners[i];
    const SeenCorner& next = piece.corners[(i + 1) % piece.corners.size()];
    const double from = BeforePlane(face, corner.at);
    const double to = BeforePlane(face, next.at);
    const int side = SideOf(from, touching);
    const int next_side = SideOf(to, touching);
    // From a corner on the plane the line goes on along the cut where the next one is lost.
    if (side <= 0) {
      cut.behind.corners.push_back({corner.at, corner.is_edge && (side != 0 || next_side <= 0)});
    }
    if (side >= 0) {
      cut.before.corners.push_back({corner.at, corner.is_edge && (side != 0 || next_side >= 0)});
    }
    if (side * next_side < 0) {
      AddCut(cut, corner, Between(corner.at, next.at, from / (from - to)), next_side < 0);
    }
  }
  return cut;
}

Covering CoveringOf(const SeenFace& first, const SeenFace& second, double touching) {
  const std::vector<FlatPoint> region = CommonRegion(first, second, touching);
  // Depths of a steep face are as sure as its distances are.
  const double sureness = std::min(first.normal[kTowards], second.normal[kTowards]);
  Covering covering;
  for (const FlatPoint& at : region) {
    const double nearer = (DepthAt(first, at) - DepthAt(second, at)) * sureness;
    if (nearer < -touching) covering.first_is_behind = true;
    if (nearer > touching) covering.second_is_behind = true;
  }
  if (covering.first_is_behind == covering.second_is_behind) return covering;
  const SeenFace& behind = covering.first_is_behind ? first : second;
  const SeenFace& before = covering.first_is_behind ? second : first;
  covering.hides_one = before.is_opaque && LiesWithin(behind, before, touching);
  return covering;
}

}  // namespace wb
