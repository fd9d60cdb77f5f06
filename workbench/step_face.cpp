// Faces: walks the loops, collects the points of their edges, adds the bulges inside them.
#include "workbench/step_face.h"

#include <algorithm>
#include <map>

#include "workbench/step_bulge.h"
#include "workbench/step_curve.h"

namespace wb {
namespace {

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

  // A seam, where a surface meets itself, is run through both ways and bounds nothing.
  void DropSeams() {
    std::map<const StepRecord*, int> uses;
    for (const Stretch& stretch : stretches_) ++uses[stretch.edge];
    std::erase_if(stretches_, [&](const Stretch& stretch) {
      return stretch.edge != nullptr && uses[stretch.edge] > 1;
    });
  }

  // Whether a point of the surface lies on the face: it does when it is to the left of the nearest
  // piece of the boundary, or when there is no boundary.
  bool Encloses(const StepBulge& bulge, const StepBulges& surface, bool same_sense) const {
    double nearest = std::numeric_limits<double>::infinity();
    StepPoint foot, tangent;
    for (const Stretch& stretch : stretches_) {
      for (std::size_t i = 1; i < stretch.points.size(); ++i) {
        const StepPoint& a = stretch.points[i - 1];
        const StepPoint along = stretch.points[i] - a;
        const double square = Dot(along, along);
        if (!(square > 0)) continue;
        const double share = std::clamp(Dot(bulge.point - a, along) / square, 0.0, 1.0);
        const StepPoint here = a + along * share;
        const double distance = Dot(bulge.point - here, bulge.point - here);
        if (distance > nearest * (1 + 1e-9)) continue;
        // At a corner two pieces are equally near; then both count.
        tangent = Unit(along, along) + (distance < nearest * (1 - 1e-9) ? StepPoint() : tangent);
        nearest = std::min(nearest, distance);
        foot = here;
      }
    }
    if (nearest == std::numeric_limits<double>::infinity()) return true;
    const StepPoint normal = surface.normal_at ? surface.normal_at(foot) : bulge.normal;
    const double side = Dot(bulge.point - foot, Cross(normal, tangent));
    return same_sense ? side > 0 : side < 0;
  }

 private:
  struct Stretch {
    const StepRecord* edge;
    std::vector<StepPoint> points;
  };

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
  if (bulges.points.empty()) return box;
  boundary.DropSeams();
  for (const StepBulge& bulge : bulges.points) {
    if (box.Holds(bulge.point)) continue;
    if (boundary.Encloses(bulge, bulges, values.size() < 4 || values.Boolean(3))) {
      box.Add(bulge.point);
    }
  }
  return box;
}

}  // namespace wb
