// Faces: walks the loops, collects the points of their edges, adds the bulges inside them.
#include "workbench/step/shape/step_face.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "workbench/step/shape/step_bulge.h"
#include "workbench/step/shape/step_curve.h"

namespace wb {
namespace {

constexpr double kRounding = 1e-7;  // millimetres; no reason to look inside a face

StepPoint ReadVertex(const StepFile& file, const StepRecord& vertex, double scale) {
  if (!file.TypeOf(vertex).Has("VERTEX_POINT")) file.Fail(vertex, "stands where a vertex is due");
  return ReadStepPoint(file, file.Arguments(vertex, "VERTEX_POINT", 1).Reference(0), scale);
}

// The boundary of a face, run through so that the face lies to the left when its normal points at
// the beholder.
class Boundary {
 public:
  Boundary(const StepFile& file, double scale) : file_(file), scale_(scale) {}

  const StepBox& box() const { return box_; }

  void AddBound(const StepRecord& bound) {
    const StepArguments values = file_.Arguments(bound);
    const StepRecord& loop = values.Reference(1);
    const bool forward = values.Boolean(2);
    const StepType& type = file_.TypeOf(loop);
    if (type.Has("VERTEX_LOOP")) {
      box_.Add(ReadVertex(file_, file_.Arguments(loop, "VERTEX_LOOP", 1).Reference(0), scale_));
    } else if (type.Has("POLY_LOOP")) {
      AddPolygon(file_.Arguments(loop, "POLY_LOOP", 1).References(0), forward);
    } else if (type.Has("EDGE_LOOP")) {
      for (const StepRecord* edge : file_.Arguments(loop, "EDGE_LOOP", 1).References(0)) {
        AddEdge(*edge, forward);
      }
    }
  }

  // Puts the boundary onto the surface's map, without its seams: where a surface meets itself, an
  // edge is run through both ways and bounds nothing.
  void Flatten(const StepBulges& surface) {
    std::map<const StepRecord*, int> uses;
    for (const Stretch& stretch : stretches_) ++uses[stretch.edge];
    std::erase_if(stretches_, [&](const Stretch& stretch) {
      return stretch.edge != nullptr && uses[stretch.edge] > 1;
    });
    for (Stretch& stretch : stretches_) {
      for (StepPoint& point : stretch.points) point = surface.flatten(point);
    }
  }

  // Whether a place on the map lies on the face: it does when it is to the left of the nearest
  // piece of the boundary, or when there is no boundary.
  bool Encloses(const StepPoint& place, const StepBulges& surface, bool same_sense) const {
    double nearest = std::numeric_limits<double>::infinity();
    StepPoint reach, foot, tangent;  // reach: from the foot to the place
    for (const Stretch& stretch : stretches_) {
      for (std::size_t i = 1; i < stretch.points.size(); ++i) {
        const StepPoint& a = stretch.points[i - 1];
        const StepPoint along = Shortest(stretch.points[i] - a, surface);
        const double square = Dot(along, along);
        if (!(square > 0)) continue;
        const StepPoint arm = Shortest(place - a, surface);
        const StepPoint step = along * std::clamp(Dot(arm, along) / square, 0.0, 1.0);
        const double distance = Dot(arm - step, arm - step);
        if (distance > nearest * (1 + 1e-9)) continue;
        const StepPoint here = a + step;
        if (distance < nearest * (1 - 1e-9)) {
          tangent = Unit(along, along);
        } else if (Length(Shortest(here - foot, surface)) < 1e-6 * std::sqrt(nearest)) {
          tangent = tangent + Unit(along, along);  // a corner: both pieces count
        } else {
          continue;  // as near elsewhere; either tells
        }
        nearest = std::min(nearest, distance);
        reach = arm - step;
        foot = here;
      }
    }
    if (nearest == std::numeric_limits<double>::infinity()) return true;
    const double side = Dot(reach, Cross(surface.normal_at(foot), tangent));
    return same_sense ? side > 0 : side < 0;
  }

 private:
  struct Stretch {
    const StepRecord* edge;
    std::vector<StepPoint> points;
  };

  // The same way on a map that repeats itself, around the other side if that is shorter.
  static StepPoint Shortest(StepPoint way, const StepBulges& surface) {
    for (int k = 0; k < 2; ++k) {
      const double period = surface.period[k];
      if (period > 0) way[k] -= period * std::round(way[k] / period);
    }
    return way;
  }

  void Add(const StepRecord* edge, std::vector<StepPoint> points, bool forward) {
    for (const StepPoint& point : points) box_.Add(point);
    if (!forward) std::reverse(points.begin(), points.end());
    stretches_.push_back({edge, std::move(points)});
  }

  void AddEdge(const StepRecord& used, bool forward) {
    const StepRecord* edge = &used;
    if (file_.TypeOf(used).Has("ORIENTED_EDGE")) {
      const StepArguments values = file_.Arguments(used, "ORIENTED_EDGE", 3);
      edge = &values.Reference(0);
      if (!values.Boolean(1)) forward = !forward;
    }
    Add(edge, ReadStepEdge(file_, *edge, scale_), forward);
  }

  void AddPolygon(const std::vector<const StepRecord*>& corners, bool forward) {
    std::vector<StepPoint> points;
    for (const StepRecord* corner : corners) {
      points.push_back(ReadStepPoint(file_, *corner, scale_));
    }
    if (!points.empty()) points.push_back(points.front());
    Add(nullptr, std::move(points), forward);
  }

  const StepFile& file_;
  double scale_;
  StepBox box_;
  std::vector<Stretch> stretches_;
};

// Adds the bulges that lie on the face and outside its box so far; those that end up outermost
// are sharpened when they are samples only.
void AddBulges(Boundary& boundary, const StepBulges& bulges, bool same_sense, StepBox& box) {
  const auto beyond = [&](const StepPoint& point) { return !box.Holds(point, kRounding); };
  if (std::none_of(bulges.points.begin(), bulges.points.end(), beyond)) return;
  boundary.Flatten(bulges);
  const StepPoint* outermost[2][3] = {};
  for (const StepPoint& point : bulges.points) {
    if (box.Holds(point, kRounding)) continue;
    if (!boundary.Encloses(bulges.flatten(point), bulges, same_sense)) continue;
    for (int k = 0; k < 3; ++k) {
      if (point[k] < box.min[k]) outermost[0][k] = &point;
      if (point[k] > box.max[k]) outermost[1][k] = &point;
    }
    box.Add(point);
  }
  if (!bulges.sharpen) return;
  for (int side = 0; side < 2; ++side) {
    for (int k = 0; k < 3; ++k) {
      if (outermost[side][k] == nullptr) continue;
      const StepPoint sharp = bulges.sharpen(*outermost[side][k], k, side == 0 ? -1 : 1);
      if (boundary.Encloses(bulges.flatten(sharp), bulges, same_sense)) box.Add(sharp);
    }
  }
}

}  // namespace

std::vector<StepPoint> ReadStepEdge(const StepFile& file, const StepRecord& edge, double scale) {
  const StepType& type = file.TypeOf(edge);
  if (type.names.size() > 1) return {};
  const StepArguments values = file.Arguments(edge);
  const StepRecord& from = values.Reference(1);
  const StepRecord& to = values.Reference(2);
  StepStretch stretch{ReadVertex(file, from, scale), ReadVertex(file, to, scale)};
  if (!type.Has("EDGE_CURVE")) return {stretch.start, stretch.end};
  stretch.closed = &from == &to;
  stretch.forward = values.Boolean(4);
  return ReadStepStretch(file, values.Reference(3), scale, stretch);
}

StepBox ReadStepFaceBox(const StepFile& file, const StepRecord& face, double scale) {
  if (file.TypeOf(face).names.size() > 1) return {};
  const StepArguments values = file.Arguments(face);
  Boundary boundary(file, scale);
  for (const StepRecord* bound : values.References(1)) boundary.AddBound(*bound);
  StepBox box = boundary.box();
  const StepRecord* surface = values.OptionalReference(2);
  if (surface == nullptr) return box;
  const StepBulges bulges = ReadStepBulges(file, *surface, scale);
  AddBulges(boundary, bulges, values.size() < 4 || values.Boolean(3), box);
  return box;
}

}  // namespace wb
