// What a user finds of a STEP assembly: models, components, places, sizes, and what is missing.
#include "workbench/step/step_product.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "tests/workbench/step/step_text_builder.h"

namespace wb {
namespace {

using Builder = StepTextBuilder;

std::string Rows(const StepPlacement& placement) {
  std::string text;
  for (const auto& row : placement.m) {
    for (int k = 0; k < 3; ++k) {
      const double rounded = std::round(row[k] * 1e6) / 1e6;
      char number[32];
      std::snprintf(number, sizeof number, "%g ", rounded == 0 ? 0.0 : rounded);
      text += number;
    }
  }
  return text;
}

void ExpectBox(const std::optional<StepBox>& box, StepPoint min, StepPoint max,
               const std::string& what, double tolerance = 1e-6) {
  ASSERT_TRUE(box.has_value()) << what;
  for (int k = 0; k < 3; ++k) {
    EXPECT_NEAR(box->min[k], min[k], tolerance) << what << ", lower " << k;
    EXPECT_NEAR(box->max[k], max[k], tolerance) << what << ", upper " << k;
  }
}

std::string ErrorOf(const Builder& file) {
  try {
    file.Read();
  } catch (const StepError& error) {
    return error.what();
  }
  return "accepted";
}

bool HasNote(const StepAssembly& assembly, const std::string& part) {
  for (const std::string& note : assembly.notes) {
    if (note.find(part) != std::string::npos) return true;
  }
  return false;
}

// An assembly "pump" and a part "bolt", with the axes that place the part.
struct Pair {
  Builder file;
  int context, from, to;
  Builder::Part bolt, pump;

  Pair() {
    context = file.Metric(".MILLI.");
    from = file.Axis("1.,0.,0.");
    to = file.Axis("10.,20.,30.", "1.,0.,0.", "0.,1.,0.");
    bolt = file.Product("bolt", {from}, context);
    pump = file.Product("pump", {to}, context);
  }
};
// z stands along x, x along y, hence y along z; the part's point (1,0,0) lands on (10,20,30).
constexpr const char* kPlaced = "0 1 0 0 0 1 1 0 0 10 19 30 ";

TEST(StepProduct, PlacesComponentsWhicheverWayRoundTheFileNamesThem) {
  struct Way {
    const char* name;
    bool swap_representations, swap_items;
    const char* rows;
  };
  const Way ways[] = {
      {"as recommended", false, false, kPlaced},
      {"items swapped", false, true, kPlaced},
      {"representations and items swapped", true, false, kPlaced},
      {"representations swapped", true, true, kPlaced},
  };
  for (const Way& way : ways) {
    Pair p;
    int rep_1 = p.bolt.representation, rep_2 = p.pump.representation;
    if (way.swap_representations) std::swap(rep_1, rep_2);
    const int usage = p.file.Usage(p.pump, p.bolt, "bolt:1");
    p.file.Place(usage, rep_1, rep_2, way.swap_items ? p.to : p.from,
                 way.swap_items ? p.from : p.to);
    const StepAssembly assembly = p.file.Read();
    ASSERT_EQ(assembly.models.size(), 2u);
    EXPECT_EQ(assembly.models[0].name, "bolt");
    EXPECT_FALSE(assembly.models[0].assembly);
    EXPECT_EQ(assembly.tops, std::vector<int>{1});
    ASSERT_EQ(assembly.models[1].components.size(), 1u);
    EXPECT_EQ(assembly.models[1].components[0].name, "bolt:1");
    EXPECT_EQ(Rows(assembly.models[1].components[0].placement), way.rows) << way.name;
  }
}

TEST(StepProduct, PlacesByMappedItemsWithAndWithoutUsages) {
  for (const int usages : {0, 1, 2}) {
    Builder file;
    const int context = file.Metric(".MILLI.");
    const int origin = file.Axis("1.,0.,0.");
    const auto bolt = file.Product("bolt", {origin}, context);
    const int first = file.Mapped(bolt.representation, origin,
                                  file.Axis("10.,20.,30.", "1.,0.,0.", "0.,1.,0."), "left");
    const int second = file.Mapped(bolt.representation, origin, file.Axis("2.,0.,0."), "right");
    const auto pump = file.Product("pump", {first, second}, context);
    for (int i = 0; i < usages; ++i) file.Usage(pump, bolt, i == 0 ? "left" : "right");
    const StepAssembly assembly = file.Read();
    const StepModel& model = assembly.models[1];
    ASSERT_EQ(model.components.size(), 2u) << usages;
    EXPECT_TRUE(model.assembly);
    EXPECT_EQ(Rows(model.components[0].placement), kPlaced);
    EXPECT_EQ(Rows(model.components[1].placement), "1 0 0 0 1 0 0 0 1 1 0 0 ");
    EXPECT_EQ(model.components[0].name, "left");
    EXPECT_EQ(model.components[1].name, "right");
  }
}

TEST(StepProduct, TransformationOperatorsMoveScaleAndMirror) {
  struct Case {
    const char* axes;  // of the operator: axis1, axis2
    const char* scale;
    const char* rows;
  };
  const Case cases[] = {
      {"$,$", "1.", "1 0 0 0 1 0 0 0 1 7 0 0 "},
      {"$,$", "$", "1 0 0 0 1 0 0 0 1 7 0 0 "},
      {"$,$", "2.", "2 0 0 0 2 0 0 0 2 7 0 0 "},
      {"$,#2", "1.", "1 0 0 0 -1 0 0 0 1 7 0 0 "},
  };
  for (const Case& c : cases) {
    Builder file;
    const int at = file.Point("7.,0.,0.");
    file.Add("DIRECTION('',(0.,-1.,0.))");
    const int context = file.Metric(".MILLI.");
    const int origin = file.Axis("0.,0.,0.");
    const auto bolt = file.Product("bolt", {origin}, context);
    const int move = file.Add(std::string("CARTESIAN_TRANSFORMATION_OPERATOR_3D('',$,$,") + c.axes +
                              "," + Builder::Ref(at) + "," + c.scale + ",$)");
    file.Product("pump", {file.Mapped(bolt.representation, origin, move)}, context);
    EXPECT_EQ(Rows(file.Read().models[1].components.at(0).placement), c.rows) << c.scale;
  }
}

TEST(StepProduct, EveryRepresentationCountsInItsOwnLengthUnit) {
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

TEST(StepProduct, ArcsReachAsFarAsTheyBend) {
  struct Arc {
    const char *from, *to, *curve;
    bool forward;
    StepPoint min, max;
  };
  const Arc arcs[] = {
      {"2.,0.,0.", "0.,2.,0.", "CIRCLE('',%o,2.)", true, {{0, 0, 0}}, {{2, 2, 0}}},
      {"2.,0.,0.", "0.,2.,0.", "CIRCLE('',%o,2.)", false, {{-2, -2, 0}}, {{2, 2, 0}}},
      {"0.,2.,0.", "0.,-2.,0.", "CIRCLE('',%o,2.)", true, {{-2, -2, 0}}, {{0, 2, 0}}},
      {"3.,0.,0.", "-3.,0.,0.", "ELLIPSE('',%o,3.,1.)", true, {{-3, 0, 0}}, {{3, 1, 0}}},
      {"0.,0.,0.",
       "4.,0.,0.",
       "%bB_SPLINE_CURVE_WITH_KNOTS('',2,%p,.U.,.F.,.F.,(3,3),(0.,1.),.U.)",
       true,
       {{0, 0, 0}},
       {{4, 1, 0}}},
      {"0.,0.,0.",
       "4.,0.,0.",
       "%bBEZIER_CURVE('',2,%p,.U.,.F.,.F.)",
       true,
       {{0, 0, 0}},
       {{4, 1, 0}}},
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
         {std::pair<std::string, std::string>("%o", Builder::Ref(origin)),
          {"%p", poles},
          {"%b", ""}}) {
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

TEST(StepProduct, CurvedFacesBulgeOnTheirOwnSideOnly) {
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
      {"PLANE('',%o)", "0.", "4.", true, {{-4, -4, 0}}, {{4, 4, 0}}},
      {"CYLINDRICAL_SURFACE('',%o,4.)", "1.", "4.", true, {{-4, -4, 1}}, {{4, 4, 1}}},
  };
  for (const Cap& cap : caps) {
    Builder file;
    const int circle =
        file.Add("CIRCLE(''," + Builder::Ref(file.Axis(std::string("0.,0.,") + cap.height)) + "," +
                 cap.radius + ")");
    const int start = file.Vertex(std::string(cap.radius) + ",0.," + cap.height);
    const StepAssembly assembly =
        OneFace(file, {file.Edge(start, start, circle)}, cap.surface, cap.same_sense);
    ExpectBox(assembly.models[0].extents, cap.min, cap.max, cap.surface);
    EXPECT_EQ(assembly.models[0].faces.size(), 1u);
  }
  for (const bool same_sense : {true, false}) {  // a ring's outer or inner half
    Builder file;
    std::vector<int> edges;
    for (const bool top : {true, false}) {
      const char* height = top ? "1." : "-1.";
      const int circle = file.Add(
          "CIRCLE(''," + Builder::Ref(file.Axis(std::string("0.,0.,") + height)) + ",10.)");
      const int start = file.Vertex(std::string("10.,0.,") + height);
      edges.push_back(file.Edge(start, start, circle, !top));
    }
    const double reach = same_sense ? 11 : 10;
    ExpectBox(OneFace(file, edges, "TOROIDAL_SURFACE('',%o,10.,1.)", same_sense).models[0].extents,
              {{-reach, -reach, -1}}, {{reach, reach, 1}}, "torus");
  }
}

TEST(StepProduct, ShapeIsFoundThroughEqualRepresentationsAndPatternsButNotThroughComponents) {
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

TEST(StepProduct, TessellatedFacesCountWithThePointsTheyUse) {
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

TEST(StepProduct, CountsOnlyDirectUsagesAndNotesTheOthers) {
  Pair p;
  p.file.Usage(p.pump, p.bolt, "", "SPECIFIED_HIGHER_USAGE_OCCURRENCE");
  p.file.Usage(p.pump, p.bolt, "", "PROMISSORY_USAGE_OCCURRENCE");
  p.file.Add(
      "(ASSEMBLY_COMPONENT_USAGE($)NEXT_ASSEMBLY_USAGE_OCCURRENCE()"
      "PRODUCT_DEFINITION_RELATIONSHIP('7','','',#" +
      std::to_string(p.pump.definition) + ",#" + std::to_string(p.bolt.definition) +
      ")PRODUCT_DEFINITION_USAGE())");
  const StepAssembly assembly = p.file.Read();
  ASSERT_EQ(assembly.models[1].components.size(), 1u);
  EXPECT_EQ(assembly.models[1].components[0].name, "7");
  EXPECT_EQ(Rows(assembly.models[1].components[0].placement), "1 0 0 0 1 0 0 0 1 0 0 0 ");
  for (const char* note : {"1 SPECIFIED_HIGHER_USAGE_OCCURRENCE left out", "1 PROMISSORY",
                           "1 components have no placement", "1 parts have no geometry"}) {
    EXPECT_TRUE(HasNote(assembly, note)) << note;
  }
}

TEST(StepProduct, AUsageWithAQuantityIsAsManyComponents) {
  const struct {
    const char* measure;
    size_t components;
    const char* note;
  } cases[] = {
      {"MEASURE_WITH_UNIT(COUNT_MEASURE(4.),$)", 4, "7 in pump: given with a quantity, imported 4"},
      {"MEASURE_REPRESENTATION_ITEM('quantity',COUNT_MEASURE(3.),$)", 3, "imported 3 times"},
      {"(MEASURE_REPRESENTATION_ITEM()MEASURE_WITH_UNIT(2,$)REPRESENTATION_ITEM(''))", 2,
       "imported 2 times"},
      {"MEASURE_WITH_UNIT(2.5,$)", 1, "given with a quantity that is no number of pieces"},
      {"MEASURE_WITH_UNIT(0.,$)", 1, "imported once"},
      {"MEASURE_WITH_UNIT(1.E9,$)", 1, "imported once"},
      {"MEASURE_WITH_UNIT(DESCRIPTIVE_MEASURE('some'),$)", 1, "imported once"},
      {"DESCRIPTIVE_REPRESENTATION_ITEM('q','as required')", 1, "imported once"},
      {"(A()B())", 1, "imported once"}};
  for (const auto& item : cases) {
    Pair p;
    const int measure = p.file.Add(item.measure);
    p.file.Add(
        "(ASSEMBLY_COMPONENT_USAGE($)NEXT_ASSEMBLY_USAGE_OCCURRENCE()"
        "PRODUCT_DEFINITION_RELATIONSHIP('7','','',#" +
        std::to_string(p.pump.definition) + ",#" + std::to_string(p.bolt.definition) +
        ")PRODUCT_DEFINITION_USAGE()QUANTIFIED_ASSEMBLY_COMPONENT_USAGE(#" +
        std::to_string(measure) + "))");
    const StepAssembly assembly = p.file.Read();
    EXPECT_EQ(assembly.models[1].components.size(), item.components) << item.measure;
    EXPECT_TRUE(HasNote(assembly, item.note)) << item.measure;
  }
}

TEST(StepProduct, AProductGivesOneModelForEachDefinitionInUse) {
  Pair p;
  p.file.Definition(p.bolt.product);  // a view that nobody uses
  const auto second = Builder::Part{p.bolt.product, p.file.Definition(p.bolt.product), 0};
  p.file.Usage(p.pump, second);
  const int lonely = p.file.Add("PRODUCT('only id','','',())");
  p.file.Definition(lonely);
  const StepAssembly assembly = p.file.Read();
  std::string names;
  for (const StepModel& model : assembly.models) names += model.name + " ";
  EXPECT_EQ(names, "bolt pump bolt only id ");
  EXPECT_EQ(assembly.models[1].components.at(0).child, 2);
  EXPECT_EQ(assembly.tops, (std::vector<int>{0, 1, 3}));
}

TEST(StepProduct, OtherFilesAreNotedAndDocumentsAreNoModels) {
  Pair p;
  const int document = p.file.Add("DOCUMENT_FILE('bolt_1.stp','','',$,'',$)");
  p.file.Add("APPLIED_DOCUMENT_REFERENCE(#" + std::to_string(document) + ",'',(#" +
             std::to_string(p.bolt.definition) + "))");
  const int drawing = p.file.Add("PRODUCT('drawing','drawing','',())");
  p.file.Add("PRODUCT_RELATED_PRODUCT_CATEGORY('document',$,(#" + std::to_string(drawing) + "))");
  p.file.Definition(drawing);
  const StepAssembly assembly = p.file.Read();
  EXPECT_EQ(assembly.models.size(), 2u);
  EXPECT_TRUE(HasNote(assembly, "bolt: refers to bolt_1.stp, which is not read"));
}

TEST(StepProduct, AComponentInAnotherFileStaysAComponent) {
  const StepAssembly assembly = ReadStepAssembly(StepFile::Parse(
      "ISO-10303-21;HEADER;ENDSEC;REFERENCE;#9=<lib/nut%20M6.stp#4>;ENDSEC;DATA;"
      "#1=PRODUCT('p','pump','',());#2=PRODUCT_DEFINITION_FORMATION('','',#1);"
      "#3=PRODUCT_DEFINITION('','',#2,$);"
      "#4=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','','',#3,#9,$);ENDSEC;END-ISO-10303-21;",
      "pump.stp"));
  ASSERT_EQ(assembly.models.size(), 2u);
  EXPECT_EQ(assembly.models[1].name, "nut%20M6");
  EXPECT_TRUE(HasNote(assembly, "lies in nut%20M6.stp, which is not read"));
}

TEST(StepProduct, BrokenStructureIsRefusedWithItsLine) {
  const auto line = [](int id) { return "pump.stp:" + std::to_string(id + 4) + ": "; };
  {
    Pair p;
    const int closing = p.file.Usage(p.pump, p.bolt);
    p.file.Usage(p.bolt, p.pump);
    const std::string said = line(closing) + "#" + std::to_string(closing);
    EXPECT_EQ(ErrorOf(p.file).find(said), 0u) << ErrorOf(p.file);
    EXPECT_NE(ErrorOf(p.file).find("puts bolt inside itself"), std::string::npos);
  }
  {
    Pair p;
    const int usage = p.file.Usage(p.pump, {0, 4711, 0});
    EXPECT_NE(ErrorOf(p.file).find("names #4711, which is not in the file"), std::string::npos);
    EXPECT_EQ(ErrorOf(p.file).find(line(usage)), 0u);
  }
  {
    Pair p;
    const int usage = p.file.Usage(p.pump, {0, p.context, 0});
    EXPECT_EQ(ErrorOf(p.file).find(line(usage)), 0u) << ErrorOf(p.file);
  }
  {
    Pair p;
    p.file.Place(p.file.Usage(p.pump, p.bolt), p.bolt.representation, p.pump.representation, p.from,
                 p.context);
    EXPECT_EQ(ErrorOf(p.file).find(line(p.context)), 0u) << ErrorOf(p.file);
  }
  {
    Builder file;  // a representation that shows itself
    const int context = file.Metric(".MILLI."), origin = file.Axis("0.,0.,0.");
    const int next = origin + 1;
    const int shown = file.Mapped(next + 2, origin, origin);
    ASSERT_EQ(file.Representation({shown}, context), next + 2);
    const auto part = file.Product("part", {origin}, context);
    file.Relate(part.representation, next + 2);
    EXPECT_EQ(ErrorOf(file).find(line(shown)), 0u) << ErrorOf(file);
  }
  EXPECT_NE(ErrorOf(Builder()).find("holds no product"), std::string::npos);
}

TEST(StepProduct, DeepAndWideAssembliesNeedNoStackAndLittleTime) {
  Builder file;
  const int context = file.Metric(".MILLI.");
  const int origin = file.Axis("0.,0.,0.");
  std::vector<Builder::Part> chain;
  for (int i = 0; i < 10'000; ++i) {
    chain.push_back(file.Product("level " + std::to_string(i), {origin}, context));
    if (i > 0) file.Usage(chain[i - 1], chain[i]);
  }
  for (int i = 0; i < 50'000; ++i) file.Usage(chain[0], chain.back());
  const StepAssembly assembly = file.Read();
  EXPECT_EQ(assembly.models.size(), 10'000u);
  EXPECT_EQ(assembly.models[0].components.size(), 50'001u);
  EXPECT_EQ(assembly.tops, std::vector<int>{0});
}

}  // namespace
}  // namespace wb
