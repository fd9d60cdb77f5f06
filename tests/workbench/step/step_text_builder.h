// Composes small STEP files for tests, instance by instance.
#pragma once

#include <string>

#include "workbench/step/step_product.h"

namespace wb {

class StepTextBuilder {
 public:
  struct Part {
    int product, definition, representation;
  };

  // Adds "#n=text;" and returns n. Instance n stands in line n + 4.
  int Add(const std::string& text) {
    text_ += "#" + std::to_string(++last_) + "=" + text + ";\n";
    return last_;
  }
  static std::string Ref(int id) { return "#" + std::to_string(id); }
  static std::string Refs(const std::vector<int>& ids) {
    std::string list;
    for (const int id : ids) list += (list.empty() ? "#" : ",#") + std::to_string(id);
    return "(" + list + ")";
  }

  // A representation context whose length unit is instance `unit`.
  int Context(int unit) {
    return Add("(GEOMETRIC_REPRESENTATION_CONTEXT(3)GLOBAL_UNIT_ASSIGNED_CONTEXT((" + Ref(unit) +
               "))REPRESENTATION_CONTEXT('',''))");
  }
  int Metric(const std::string& prefix) {
    return Context(Add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(" + prefix + ",.METRE.))"));
  }
  int Inches() {
    const int base = Add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.))");
    const int measure = Add("LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(25.4)," + Ref(base) + ")");
    return Context(
        Add("(CONVERSION_BASED_UNIT('INCH'," + Ref(measure) + ")LENGTH_UNIT()NAMED_UNIT($))"));
  }
  int Point(const std::string& xyz) { return Add("CARTESIAN_POINT('',(" + xyz + "))"); }
  // At `xyz`, with z and x as given or along the axes.
  int Axis(const std::string& xyz, const std::string& z = {}, const std::string& x = {}) {
    const int origin = Point(xyz);
    const auto direction = [this](const std::string& d) {
      return d.empty() ? std::string("$") : Ref(Add("DIRECTION('',(" + d + "))"));
    };
    const std::string axis = direction(z), reference = direction(x);
    return Add("AXIS2_PLACEMENT_3D(''," + Ref(origin) + "," + axis + "," + reference + ")");
  }
  int Representation(const std::vector<int>& items, int context) {
    return Add("SHAPE_REPRESENTATION(''," + Refs(items) + "," + Ref(context) + ")");
  }
  Part Product(const std::string& name, const std::vector<int>& items, int context) {
    Part part{};
    part.product = Add("PRODUCT('id of " + name + "','" + name + "','',())");
    part.definition = Definition(part.product);
    part.representation = Representation(items, context);
    Shape(part.definition, part.representation);
    return part;
  }
  int Definition(int product) {
    const int formation = Add("PRODUCT_DEFINITION_FORMATION('',''," + Ref(product) + ")");
    return Add("PRODUCT_DEFINITION('',''," + Ref(formation) + ",$)");
  }
  void Shape(int definition, int representation) {
    const int shape = Add("PRODUCT_DEFINITION_SHAPE('',''," + Ref(definition) + ")");
    Add("SHAPE_DEFINITION_REPRESENTATION(" + Ref(shape) + "," + Ref(representation) + ")");
  }
  int Usage(const Part& parent, const Part& child, const std::string& name = "place",
            const std::string& entity = "NEXT_ASSEMBLY_USAGE_OCCURRENCE") {
    return Add(entity + "('1','" + name + "',''," + Ref(parent.definition) + "," +
               Ref(child.definition) + ",$)");
  }
  // A plain relation and a placing one that leads item_1 of rep_1 to item_2 of rep_2.
  void Relate(int rep_1, int rep_2) {
    Add("SHAPE_REPRESENTATION_RELATIONSHIP('',''," + Ref(rep_1) + "," + Ref(rep_2) + ")");
  }
  void Place(int usage, int rep_1, int rep_2, int item_1, int item_2) {
    const int move =
        Add("ITEM_DEFINED_TRANSFORMATION('',''," + Ref(item_1) + "," + Ref(item_2) + ")");
    const int relation = Add("(REPRESENTATION_RELATIONSHIP('',''," + Ref(rep_1) + "," + Ref(rep_2) +
                             ")REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION(" + Ref(move) +
                             ")SHAPE_REPRESENTATION_RELATIONSHIP())");
    const int shape = Add("PRODUCT_DEFINITION_SHAPE('',''," + Ref(usage) + ")");
    Add("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION(" + Ref(relation) + "," + Ref(shape) + ")");
  }
  int Mapped(int representation, int origin, int target, const std::string& name = {}) {
    const int map = Add("REPRESENTATION_MAP(" + Ref(origin) + "," + Ref(representation) + ")");
    return Add("MAPPED_ITEM('" + name + "'," + Ref(map) + "," + Ref(target) + ")");
  }
  int Edge(int from, int to, int curve, bool forward = true) {
    const int edge = Add("EDGE_CURVE(''," + Ref(from) + "," + Ref(to) + "," + Ref(curve) +
                         (forward ? ",.T.)" : ",.F.)"));
    return Add("ORIENTED_EDGE('',*,*," + Ref(edge) + ",.T.)");
  }
  int Vertex(const std::string& xyz) { return Add("VERTEX_POINT(''," + Ref(Point(xyz)) + ")"); }
  // A surface model of one face.
  int Face(const std::vector<int>& edges, const std::string& surface, bool same_sense = true) {
    const int geometry = Add(surface);
    const int loop = Add("EDGE_LOOP(''," + Refs(edges) + ")");
    const int bound = Add("FACE_BOUND(''," + Ref(loop) + ",.T.)");
    const int face = Add("ADVANCED_FACE('',(" + Ref(bound) + ")," + Ref(geometry) +
                         (same_sense ? ",.T.)" : ",.F.)"));
    const int shell = Add("OPEN_SHELL('',(" + Ref(face) + "))");
    return Add("SHELL_BASED_SURFACE_MODEL('',(" + Ref(shell) + "))");
  }

  // The whole file.
  std::string Text() const {
    return "ISO-10303-21;HEADER;\nFILE_SCHEMA(('AP'));\nENDSEC;\nDATA;\n" + text_ +
           "ENDSEC;\nEND-ISO-10303-21;\n";
  }
  StepAssembly Read() const { return ReadStepAssembly(StepFile::Parse(Text(), "pump.stp")); }

 private:
  std::string text_;
  int last_ = 0;
};

}  // namespace wb
