// Collects faces, wires and mapped representations; shapes shown by several are read once.
#include "workbench/step/shape/step_shape.h"

#include <algorithm>
#include <unordered_set>

#include "workbench/step/shape/step_curve.h"
#include "workbench/step/shape/step_face.h"

namespace wb {

// What an entity means for a box. Everything not named here is looked through for what it names.
enum class StepShapes::Role : std::uint8_t {
  kInner,
  kFace,
  kEdge,
  kCurve,
  kPoint,
  kTessellatedFace,
  kTessellatedSet,
  kMapped,
  kNothing,
};

namespace {

// Faces shown by mapped items beyond this number count as one box per mapped item.
constexpr std::size_t kMostShownFaces = 200'000;

bool EndsWith(std::string_view name, std::string_view end) {
  return name.ends_with(end);
}

// Triangles name points by their place in the face's own list of points when it has one.
void CollectNumbers(const StepValue& list, std::vector<double>& numbers) {
  for (const StepValue& item : list.items) {
    if (item.kind == StepValue::Kind::kNumber) numbers.push_back(item.number);
    CollectNumbers(item, numbers);
  }
}

}  // namespace

StepShapes::StepShapes(const StepFile& file, StepUnits& units,
                       std::function<bool(const StepRecord&, const StepRecord&)> is_component)
    : file_(file), units_(units), is_component_(std::move(is_component)) {
  static const std::unordered_map<std::string_view, Role> kRoles = {
      {"ADVANCED_FACE", Role::kFace},
      {"FACE_SURFACE", Role::kFace},
      {"FACE", Role::kFace},
      {"EDGE_CURVE", Role::kEdge},
      {"EDGE", Role::kEdge},
      {"CIRCLE", Role::kCurve},
      {"ELLIPSE", Role::kCurve},
      {"TRIMMED_CURVE", Role::kCurve},
      {"POLYLINE", Role::kCurve},
      {"SURFACE_CURVE", Role::kCurve},
      {"SEAM_CURVE", Role::kCurve},
      {"INTERSECTION_CURVE", Role::kCurve},
      {"B_SPLINE_CURVE", Role::kCurve},
      {"B_SPLINE_CURVE_WITH_KNOTS", Role::kCurve},
      {"BEZIER_CURVE", Role::kCurve},
      {"UNIFORM_CURVE", Role::kCurve},
      {"QUASI_UNIFORM_CURVE", Role::kCurve},
      {"CARTESIAN_POINT", Role::kPoint},
      {"TRIANGULATED_FACE", Role::kTessellatedFace},
      {"COMPLEX_TRIANGULATED_FACE", Role::kTessellatedFace},
      {"TRIANGULATED_SURFACE_SET", Role::kTessellatedSet},
      {"COMPLEX_TRIANGULATED_SURFACE_SET", Role::kTessellatedSet},
      {"MAPPED_ITEM", Role::kMapped},
      {"AXIS1_PLACEMENT", Role::kNothing},
      {"AXIS2_PLACEMENT_2D", Role::kNothing},
      {"AXIS2_PLACEMENT_3D", Role::kNothing},
      {"CARTESIAN_TRANSFORMATION_OPERATOR_3D", Role::kNothing},
      {"PLANE", Role::kNothing},
      {"LINE", Role::kNothing},
      {"PCURVE", Role::kNothing},
      {"STYLED_ITEM", Role::kNothing},
  };
  for (const StepType& type : file.types()) {
    Role role = Role::kInner;
    for (const std::string& name : type.names) {
      const auto known = kRoles.find(name);
      if (known != kRoles.end()) role = known->second;
      if (EndsWith(name, "REPRESENTATION") || EndsWith(name, "_CONTEXT")) role = Role::kNothing;
    }
    roles_.push_back(role);
  }
}

std::vector<StepMapping> StepShapes::MappingsOf(const StepRecord& representation) {
  std::vector<StepMapping> mappings;
  const double scale = units_.ScaleOf(representation);
  for (const StepRecord* item : file_.Arguments(representation, "REPRESENTATION").References(1)) {
    if (roles_[item->type] != Role::kMapped) continue;
    const StepArguments values = file_.Arguments(*item, "MAPPED_ITEM", 1);
    const StepArguments map = file_.Arguments(values.Reference(0), "REPRESENTATION_MAP");
    const StepRecord& shown = map.Reference(1);
    const StepPlacement origin = ReadStepPlacement(file_, map.Reference(0), units_.ScaleOf(shown));
    const StepPlacement target = ReadStepPlacement(file_, values.Reference(1), scale);
    mappings.push_back({item, &shown, Then(Inverse(origin), target)});
  }
  return mappings;
}

const StepShape& StepShapes::Of(const StepRecord& representation) {
  std::vector<const StepRecord*> open{&representation};
  while (!open.empty()) {
    const StepRecord& top = *open.back();
    const auto [place, added] = entries_.try_emplace(&top);
    Entry& entry = place->second;
    if (!added) {
      if (!entry.done) Combine(entry);
      open.pop_back();
      continue;
    }
    ReadOwn(top, entry);
    for (const StepMapping& mapping : entry.shown) {
      const auto known = entries_.find(mapping.representation);
      if (known == entries_.end()) {
        open.push_back(mapping.representation);
      } else if (!known->second.done) {
        file_.Fail(*mapping.item, "shows a representation inside itself");
      }
    }
  }
  return entries_.at(&representation).shape;
}

void StepShapes::ReadOwn(const StepRecord& representation, Entry& entry) {
  const double scale = units_.ScaleOf(representation);
  std::unordered_set<const StepRecord*> seen;
  std::vector<const StepRecord*> open =
      file_.Arguments(representation, "REPRESENTATION").References(1);
  while (!open.empty()) {
    const StepRecord* item = open.back();
    open.pop_back();
    if (!seen.insert(item).second) continue;
    if (roles_[item->type] != Role::kInner) {
      AddItem(*item, scale, entry.shape);
      continue;
    }
    for (const std::uint64_t id : file_.References(*item)) {
      open.push_back(&file_.Get(id, *item));
    }
  }
  entry.shown = MappingsOf(representation);
  std::erase_if(entry.shown, [&](const StepMapping& mapping) {
    return is_component_(representation, *mapping.representation);
  });
}

void StepShapes::AddItem(const StepRecord& item, double scale, StepShape& shape) {
  const Role role = roles_[item.type];
  StepBox face;
  if (role == Role::kFace) {
    face = ReadStepFaceBox(file_, item, scale);
  } else if (role == Role::kTessellatedFace || role == Role::kTessellatedSet) {
    face = TessellationBox(item, role == Role::kTessellatedFace, scale);
  } else if (role == Role::kEdge) {
    for (const StepPoint& point : ReadStepEdge(file_, item, scale)) shape.wires.Add(point);
  } else if (role == Role::kCurve) {
    for (const StepPoint& point : ReadStepCurve(file_, item, scale)) shape.wires.Add(point);
  } else if (role == Role::kPoint) {
    shape.wires.Add(ReadStepPoint(file_, item, scale));
  }
  if (!face.empty()) shape.faces.push_back(face);
}

// Adds what the mapped items show; every shown representation is complete by now.
void StepShapes::Combine(Entry& entry) {
  const std::size_t own = entry.shape.faces.size();
  for (const StepMapping& mapping : entry.shown) {
    const StepShape& shown = entries_.at(mapping.representation).shape;
    entry.shape.wires.Add(Transform(shown.wires, mapping.placement));
    StepBox whole;
    const bool too_many = entry.shape.faces.size() - own + shown.faces.size() > kMostShownFaces;
    for (const StepBox& face : shown.faces) {
      const StepBox moved = Transform(face, mapping.placement);
      whole.Add(moved);
      if (!too_many) entry.shape.faces.push_back(moved);
    }
    if (too_many) entry.shape.faces.push_back(whole);
  }
  entry.done = true;
}

const std::vector<StepPoint>& StepShapes::Coordinates(const StepRecord& list, double scale) {
  if (coordinates_of_ == &list) return coordinates_;
  const StepArguments values = file_.Arguments(list, "COORDINATES_LIST", 1);
  coordinates_.clear();
  for (const StepValue& row : values.At(1).items) {
    StepPoint point;
    for (std::size_t k = 0; k < std::min<std::size_t>(3, row.items.size()); ++k) {
      point[k] = row.items[k].number * scale;
    }
    coordinates_.push_back(point);
  }
  coordinates_of_ = &list;
  return coordinates_;
}

// Both kinds begin with name, coordinates, highest index and normals; a face names its exact
// counterpart next, then come its points and its triangles.
StepBox StepShapes::TessellationBox(const StepRecord& record, bool face, double scale) {
  StepBox box;
  if (file_.TypeOf(record).names.size() > 1) return box;
  const StepArguments values = file_.Arguments(record);
  const std::vector<StepPoint>& points = Coordinates(values.Reference(1), scale);
  std::vector<double> used;
  for (std::size_t i = face ? 5 : 4; i < values.size() && used.empty(); ++i) {
    CollectNumbers(values.At(i), used);
    if (i >= (face ? 6u : 5u) && i + 1 < values.size()) CollectNumbers(values.At(i + 1), used);
  }
  for (const double place : used) {
    if (place >= 1 && place <= static_cast<double>(points.size())) {
      box.Add(points[static_cast<std::size_t>(place) - 1]);
    }
  }
  return box;
}

}  // namespace wb
