// How far the geometry of a STEP part reaches.
#include "workbench/step/step_product.h"

#include <gtest/gtest.h>

#include "tests/workbench/step/step_text_builder.h"

namespace wb {
namespace {

using Builder = StepTextBuilder;

void ExpectBox(const std::optional<StepBox>& box, StepPoint min, StepPoint max,
               const std::string& what, double tolerance = 1e-6) {
  ASSERT_TRUE(box.has_value()) << what;
  for (int k = 0; k < 3; ++k) {
    EXPECT_NEAR(box->min[k], min[k], tolerance) << what << ", lower " << k;
    EXPECT_NEAR(box->max[k], max[k], tolerance) << what << ", upper " << k;
  }
}

TEST(StepShape, EveryRepresentationCountsInItsOwnLengthUnit) {
  struct Unit {
    const char* name;
    double millimetres;
  };
  for (const Unit& unit :
       {Unit{".MILLI.", 1}, Unit{"$", 1000}, Unit{".CENTI.", 10}, Unit{"", 25.4}}) {
    Builder file;
    const int context = *unit.name ? file.Metric(unit.name) : file.Inches();
    const int metric = file.Metric(".MILLI.");
    const int from = file.Axis("1.,0.,0."), to = file.Axis("0.,0.,5.");
    const int set = file.Add("GEOMETRIC_SET(''," +
                             Builder::Refs({file.Point("0.,0.,0."), file.Point("2.,3.,4.")}) + ")");
    const auto bolt = file.Product("bolt", {from, set}, context);
    const auto pump = file.Product("pump", {to}, metric);
    file.Place(file.Usage(pump, bolt), bolt.representation, pump.representation, from, to);
    const StepAssembly assembly = file.Read();
    const double mm = unit.millimetres;
    ExpectBox(assembly.models[0].extents, {}, {{2 * mm, 3 * mm, 4 * mm}}, unit.name);
    const StepPlacement& placement = assembly.models[1].components[0].placement;
    EXPECT_NEAR(placement.m[3][0], -mm, 1e-9) << unit.name;
    EXPECT_NEAR(placement.m[3][2], 5, 1e-9) << unit.name;
  }
}

// A face bounded by `edges` on `surface`; %o stands for an axis at the origin.
StepAssembly OneFace(Builder& file, const std::vector<int>& edges, std::string surface,
                     bool sense) {
  const int origin = file.Axis("0.,0.,0.");
  surface.replace(surface.find("%o"), 2, Builder::Ref(origin));
  const int model = file.Face(edges, surface, sense);
  file.Product("cap", {origin, model}, file.Metric(".MILLI."));
  return file.Read();
}

TEST(StepShape, ArcsReachAsFarAsTheyBend) {
  struct Arc {
    const char *from, *to, *curve;
    bool forward;
    StepPoint min, max;
  };
  const char* const kSpline = "B_SPLINE_CURVE_WITH_KNOTS('',2,%p,.U.,.F.,.F.,(3,3),(0.,1.),.U.)";
  const char* const kBezier = "BEZIER_CURVE('',2,%p,.U.,.F.,.F.)";
  const Arc arcs[] = {
      {"2.,0.,0.", "0.,2.,0.", "CIRCLE('',%o,2.)", true, {{0, 0, 0}}, {{2, 2, 0}}},
      {"2.,0.,0.", "0.,2.,0.", "CIRCLE('',%o,2.)", false, {{-2, -2, 0}}, {{2, 2, 0}}},
      {"0.,2.,0.", "0.,-2.,0.", "CIRCLE('',%o,2.)", true, {{-2, -2, 0}}, {{0, 2, 0}}},
      {"3.,0.,0.", "-3.,0.,0.", "ELLIPSE('',%o,3.,1.)", true, {{-3, 0, 0}}, {{3, 1, 0}}},
      {"0.,0.,0.", "4.,0.,0.", kSpline, true, {{0, 0, 0}}, {{4, 1, 0}}},
      {"0.,0.,0.", "4.,0.,0.", kBezier, true, {{0, 0, 0}}, {{4, 1, 0}}},
      {"1.,2.,0.", "1.,-2.,0.", "PARABOLA('',%o,1.)", true, {{0, -2, 0}}, {{1, 2, 0}}},
      {"1.,2.,0.", "5.,6.,7.", "LINE('',$,$)", true, {{1, 2, 0}}, {{5, 6, 7}}},
  };
  for (const Arc& arc : arcs) {
    Builder file;
    const int origin = file.Axis("0.,0.,0.");
    const std::string poles =
        Builder::Refs({file.Point("0.,0.,0."), file.Point("2.,2.,0."), file.Point("4.,0.,0.")});
    std::string curve = arc.curve;
    for (const auto& [mark, text] :
         {std::pair<std::string, std::string>("%o", Builder::Ref(origin)), {"%p", poles}}) {
      if (const std::size_t at = curve.find(mark); at != std::string::npos) {
        curve.replace(at, 2, text);
      }
    }
    const int edge =
        file.Edge(file.Vertex(arc.from), file.Vertex(arc.to), file.Add(curve), arc.forward);
    ExpectBox(OneFace(file, {edge}, "PLANE('',%o)", true).models[0].extents, arc.min, arc.max,
              std::string(arc.curve) + " from " + arc.from);
  }
}

// A whole circle about the z axis.
int CircleEdge(Builder& file, const std::string& height, const std::string& radius,
               bool forward = true) {
  const int axis = file.Axis("0.,0.," + height);
  const int circle = file.Add("CIRCLE(''," + Builder::Ref(axis) + "," + radius + ")");
  const int start = file.Vertex(radius + ",0.," + height);
  return file.Edge(start, start, circle, forward);
}

TEST(StepShape, CurvedFacesBulgeOnTheirOwnSideOnly) {
  struct Cap {
    const char* surface;
    const char* height;  // of the circle that bounds the face
    const char* radius;
    bool same_sense;
    StepPoint min, max;
  };
  const Cap caps[] = {
      {"SPHERICAL_SURFACE('',%o,5.)", "3.", "4.", true, {{-4, -4, 3}}, {{4, 4, 5}}},
      {"SPHERICAL_SURFACE('',%o,5.)", "3.", "4.", false, {{-5, -5, -5}}, {{5, 5, 3}}},
      {"CYLINDRICAL_SURFACE('',%o,4.)", "1.", "4.", true, {{-4, -4, 1}}, {{4, 4, 1}}},
  };
  for (const Cap& cap : caps) {
    Builder file;
    const int edge = CircleEdge(file, cap.height, cap.radius);
    const StepAssembly assembly = OneFace(file, {edge}, cap.surface, cap.same_sense);
    ExpectBox(assembly.models[0].extents, cap.min, cap.max, cap.surface);
    EXPECT_EQ(assembly.models[0].faces.size(), 1u);
  }
  for (const bool same_sense : {true, false}) {  // a ring's outer or inner half
    Builder file;
    const std::vector<int> edges = {CircleEdge(file, "1.", "10.", false),
                                    CircleEdge(file, "-1.", "10.", true)};
    const double reach = same_sense ? 11 : 10;
    ExpectBox(OneFace(file, edges, "TOROIDAL_SURFACE('',%o,10.,1.)", same_sense).models[0].extents,
              {{-reach, -reach, -1}}, {{reach, reach, 1}}, "torus");
  }
}

TEST(StepShape, ShapeIsFoundThroughEqualRepresentationsAndPatternsButNotThroughComponents) {
  Builder file;
  const int context = file.Metric(".MILLI.");
  const int origin = file.Axis("0.,0.,0."), aside = file.Axis("10.,0.,0.");
  const auto point = [&](const char* xyz) {
    return file.Add("GEOMETRIC_SET(''," + Builder::Refs({file.Point(xyz)}) + ")");
  };
  const int tooth = file.Representation({origin, point("1.,1.,1.")}, context);
  const int comb = file.Representation(
      {file.Mapped(tooth, origin, origin), file.Mapped(tooth, origin, aside)}, context);
  const auto part = file.Product("comb", {origin}, context);
  file.Relate(part.representation, comb);
  const auto top = file.Product("box", {file.Mapped(part.representation, origin, aside)}, context);
  file.Usage(top, part);
  const StepAssembly assembly = file.Read();
  ExpectBox(assembly.models[0].extents, {{1, 1, 1}}, {{11, 1, 1}}, "comb");
  EXPECT_FALSE(assembly.models[1].extents.has_value());
}

TEST(StepShape, TessellatedFacesCountWithThePointsTheyUse) {
  Builder file;
  const int list = file.Add("COORDINATES_LIST('',4,((0.,0.,0.),(1.,0.,0.),(0.,2.,0.),(9.,9.,9.)))");
  const std::string head = "TRIANGULATED_FACE(''," + Builder::Ref(list) + ",4,(),$,";
  const int plain = file.Add(head + "(),((1,2,3)))"), indexed = file.Add(head + "(4,2),((1,2,2)))");
  const int solid = file.Add("TESSELLATED_SOLID(''," + Builder::Refs({plain, indexed}) + ",$)");
  file.Product("mesh", {solid}, file.Metric(".MILLI."));
  const StepModel model = file.Read().models[0];
  ASSERT_EQ(model.faces.size(), 2u);
  ExpectBox(model.faces[1], {}, {{1, 2, 0}}, "plain");  // items are looked through last first
  ExpectBox(model.faces[0], {{1, 0, 0}}, {{9, 9, 9}}, "indexed");
}

}  // namespace
}  // namespace wb
