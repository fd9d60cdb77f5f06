// Product structure: first every model with its axes and bodies, then who is placed in whom.
#include "workbench/step/write/step_writer.h"

#include <cmath>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "workbench/base/text.h"
#include "workbench/step/write/step_blocks.h"
#include "workbench/step/write/step_records.h"

namespace wb {
namespace {

Point AxisOf(const Placement& placement, size_t row) {
  return {placement[row][0], placement[row][1], placement[row][2]};
}

double LengthOf(const Point& v) {
  return std::hypot(v[0], v[1], v[2]);
}

// Whether x, y and z have the length 1, are upright on each other and form a right hand.
bool IsRigid(const Placement& placement) {
  constexpr double kSame = 1e-9;
  const Point x = AxisOf(placement, 0), y = AxisOf(placement, 1), z = AxisOf(placement, 2);
  for (size_t i = 0; i < 3; ++i) {
    const size_t j = (i + 1) % 3, k = (i + 2) % 3;
    if (std::abs(x[j] * y[k] - x[k] * y[j] - z[i]) > kSame) return false;
  }
  return std::abs(LengthOf(x) - 1) <= kSame && std::abs(LengthOf(y) - 1) <= kSame;
}

// What later records say of a model.
struct WrittenModel {
  int definition = 0;
  int representation = 0;
  int origin = 0;           // its own axes
  std::vector<int> places;  // of its components, in order
};

class StepWriter {
 public:
  explicit StepWriter(const Model& top) { Gather(top); }

  std::string TextFor(std::string_view name) {
    AddContexts();
    for (const Model* const model : models_) written_.push_back(WriteModel(*model));
    for (size_t i = 0; i < models_.size(); ++i) WriteUsages(*models_[i], written_[i]);
    return records_.TakeFile(name);
  }

 private:
  static std::vector<const Feature*> ComponentsOf(const Model& model);
  void Gather(const Model& top);
  void AddContexts();
  WrittenModel WriteModel(const Model& model);
  std::string IdentifierOf(const Model& model) const;
  int WriteProduct(const Model& model);
  void WriteShape(const Model& model, const WrittenModel& written);
  void WriteUsages(const Model& model, const WrittenModel& written);
  int WriteUsage(const Feature& component, int parent, int child);
  int WritePlace(const Placement& placement);
  int WriteAxes(const Placement& placement);
  int WriteOperator(const Placement& placement);
  int Direction(const Point& v);
  int PointRecord(const Placement& placement);

  StepRecords records_;
  int product_context_ = 0, design_context_ = 0, space_ = 0;
  std::vector<const Model*> models_;  // the top first, each before those that it places first
  std::unordered_map<const Model*, size_t> index_;
  std::unordered_set<std::string> parts_;  // their names, without case
  std::vector<WrittenModel> written_;
};

std::vector<const Feature*> StepWriter::ComponentsOf(const Model& model) {
  std::vector<const Feature*> components;
  for (const Feature& feature : FeaturesOf(model)) {
    const Model* const placed = feature.ComponentModel();
    if (placed == nullptr || placed->As<SolidContent>() == nullptr) continue;
    if (feature.status == FeatureStatus::kActive) components.push_back(&feature);
  }
  return components;
}

void StepWriter::Gather(const Model& top) {
  const auto add = [this](const Model* model) {
    if (!index_.emplace(model, models_.size()).second) return;
    models_.push_back(model);
    if (model->id.kind == ModelKind::kPart) parts_.insert(FoldCase(model->id.name));
  };
  add(&top);
  for (size_t i = 0; i < models_.size(); ++i) {
    for (const Feature* const component : ComponentsOf(*models_[i])) {
      add(component->ComponentModel());
    }
  }
}

// Lengths in millimetres, as exact as a reader's own geometry.
void StepWriter::AddContexts() {
  const int application = records_.Add("APPLICATION_CONTEXT",
                                       {"'core data for automotive mechanical design processes'"});
  records_.Add("APPLICATION_PROTOCOL_DEFINITION",
               {"'international standard'", "'automotive_design'", "2000", StepRef(application)});
  product_context_ =
      records_.Add("PRODUCT_CONTEXT", {kStepNoText, StepRef(application), "'mechanical'"});
  design_context_ = records_.Add("PRODUCT_DEFINITION_CONTEXT",
                                 {"'part definition'", StepRef(application), "'design'"});
  const int length = records_.AddComplex("LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.)");
  const int angle = records_.AddComplex("NAMED_UNIT(*)PLANE_ANGLE_UNIT()SI_UNIT($,.RADIAN.)");
  const int solid = records_.AddComplex("NAMED_UNIT(*)SI_UNIT($,.STERADIAN.)SOLID_ANGLE_UNIT()");
  const int exactness = records_.Add(
      "UNCERTAINTY_MEASURE_WITH_UNIT",
      {"LENGTH_MEASURE(1.E-07)", StepRef(length), "'distance_accuracy_value'", kStepNoText});
  space_ = records_.AddComplex(
      "GEOMETRIC_REPRESENTATION_CONTEXT(3)"
      "GLOBAL_UNCERTAINTY_ASSIGNED_CONTEXT(" +
      StepRefs({exactness}) + ")GLOBAL_UNIT_ASSIGNED_CONTEXT(" + StepRefs({length, angle, solid}) +
      ")REPRESENTATION_CONTEXT('','')");
}

WrittenModel StepWriter::WriteModel(const Model& model) {
  WrittenModel written;
  written.definition = WriteProduct(model);
  written.origin = WriteAxes(kIdentityPlacement);
  std::vector<int> items = {written.origin};
  for (const Feature* const component : ComponentsOf(model)) {
    written.places.push_back(WritePlace(component->component->placement));
    if (IsRigid(component->component->placement)) items.push_back(written.places.back());
  }
  written.representation = records_.Add(
      "SHAPE_REPRESENTATION", {StepQuoted(model.id.name), StepRefs(items), StepRef(space_)});
  WriteShape(model, written);
  return written;
}

// A part and an assembly may share a name, identifiers may not. Some readers show the identifier in
// place of a name without ASCII characters, so that the two are one where they can.
std::string StepWriter::IdentifierOf(const Model& model) const {
  const bool is_shared =
      model.id.kind != ModelKind::kPart && parts_.contains(FoldCase(model.id.name));
  return is_shared ? model.id.Text() : model.id.name;
}

int StepWriter::WriteProduct(const Model& model) {
  const int product =
      records_.Add("PRODUCT", {StepQuoted(IdentifierOf(model)), StepQuoted(model.id.name),
                               kStepNoText, StepRefs({product_context_})});
  records_.Add("PRODUCT_RELATED_PRODUCT_CATEGORY", {"'part'", "$", StepRefs({product})});
  const int formation =
      records_.Add("PRODUCT_DEFINITION_FORMATION", {kStepNoText, kStepNoText, StepRef(product)});
  return records_.Add("PRODUCT_DEFINITION",
                      {"'design'", kStepNoText, StepRef(formation), StepRef(design_context_)});
}

// Solids and single faces may not stand in one representation: each kind has its own, equal to that
// of the product.
void StepWriter::WriteShape(const Model& model, const WrittenModel& written) {
  const int shape = records_.Add("PRODUCT_DEFINITION_SHAPE",
                                 {kStepNoText, kStepNoText, StepRef(written.definition)});
  records_.Add("SHAPE_DEFINITION_REPRESENTATION",
               {StepRef(shape), StepRef(written.representation)});
  const StepBodies bodies = WriteStepBodies(BlocksAround(model.solid().surfaces), records_);
  const auto relate = [&](std::string_view entity, std::vector<int> items) {
    if (items.empty()) return;
    items.insert(items.begin(), written.origin);
    const int representation =
        records_.Add(entity, {StepQuoted(model.id.name), StepRefs(items), StepRef(space_)});
    records_.Add(
        "SHAPE_REPRESENTATION_RELATIONSHIP",
        {kStepNoText, kStepNoText, StepRef(written.representation), StepRef(representation)});
  };
  relate("ADVANCED_BREP_SHAPE_REPRESENTATION", bodies.solids);
  relate("MANIFOLD_SURFACE_SHAPE_REPRESENTATION", bodies.faces);
}

void StepWriter::WriteUsages(const Model& model, const WrittenModel& written) {
  const std::vector<const Feature*> components = ComponentsOf(model);
  for (size_t i = 0; i < components.size(); ++i) {
    const Feature& component = *components[i];
    const WrittenModel& child = written_[index_.at(component.ComponentModel())];
    const int usage = WriteUsage(component, written.definition, child.definition);
    const bool rigid = IsRigid(component.component->placement);
    const int move = rigid ? records_.Add("ITEM_DEFINED_TRANSFORMATION",
                                          {kStepNoText, kStepNoText, StepRef(child.origin),
                                           StepRef(written.places[i])})
                           : written.places[i];
    const int relation = records_.AddComplex(
        "REPRESENTATION_RELATIONSHIP('',''," + StepRef(child.representation) + "," +
        StepRef(written.representation) + ")REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION(" +
        StepRef(move) + ")SHAPE_REPRESENTATION_RELATIONSHIP()");
    const int shape =
        records_.Add("PRODUCT_DEFINITION_SHAPE", {kStepNoText, kStepNoText, StepRef(usage)});
    records_.Add("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION", {StepRef(relation), StepRef(shape)});
  }
}

int StepWriter::WriteUsage(const Feature& component, int parent, int child) {
  return records_.Add(
      "NEXT_ASSEMBLY_USAGE_OCCURRENCE",
      {StepQuoted(std::to_string(component.id)), StepQuoted(component.component->link.name.name),
       kStepNoText, StepRef(parent), StepRef(child), "$"});
}

int StepWriter::WritePlace(const Placement& placement) {
  return IsRigid(placement) ? WriteAxes(placement) : WriteOperator(placement);
}

int StepWriter::WriteAxes(const Placement& placement) {
  return records_.Add("AXIS2_PLACEMENT_3D", {kStepNoText, StepRef(PointRecord(placement)),
                                             StepRef(Direction(AxisOf(placement, 2))),
                                             StepRef(Direction(AxisOf(placement, 0)))});
}

int StepWriter::WriteOperator(const Placement& placement) {
  return records_.Add(
      "CARTESIAN_TRANSFORMATION_OPERATOR_3D",
      {kStepNoText, kStepNoText, kStepNoText, StepRef(Direction(AxisOf(placement, 0))),
       StepRef(Direction(AxisOf(placement, 1))), StepRef(PointRecord(placement)),
       StepReal(LengthOf(AxisOf(placement, 2))), StepRef(Direction(AxisOf(placement, 2)))});
}

int StepWriter::Direction(const Point& v) {
  const double length = LengthOf(v);
  // Dividing by what is 1 but for rounding would only round once more.
  const double scale = std::abs(length - 1) < 1e-9 || !(length > 0) ? 1 : length;
  return records_.AddOnce("DIRECTION",
                          {kStepNoText, StepReals(v[0] / scale, v[1] / scale, v[2] / scale)});
}

int StepWriter::PointRecord(const Placement& placement) {
  return records_.Add("CARTESIAN_POINT",
                      {kStepNoText, StepReals(placement[3][0], placement[3][1], placement[3][2])});
}

}  // namespace

std::string StepTextOf(const Model& top, std::string_view name) {
  return StepWriter(top).TextFor(name);
}

}  // namespace wb
