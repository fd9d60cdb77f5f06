// Where the components of a STEP assembly stand, however a file says so.
#include "workbench/step/step_product.h"

#include <gtest/gtest.h>

#include "tests/workbench/step/step_pair.h"

namespace wb {
namespace {

using Builder = StepTextBuilder;

// z stands along x, x along y, hence y along z; the part's point (1,0,0) lands on (10,20,30).
constexpr const char* kPlaced = "0 1 0 0 0 1 1 0 0 10 19 30 ";

TEST(StepPlacement, PlacesComponentsWhicheverWayRoundTheFileNamesThem) {
  struct Way {
    const char* name;
    bool swap_representations, swap_items;
  };
  const Way ways[] = {
      {"as recommended", false, false},
      {"items swapped", false, true},
      {"representations and items swapped", true, false},
      {"representations swapped", true, true},
  };
  for (const Way& way : ways) {
    StepPair p;
    int rep_1 = p.bolt.representation, rep_2 = p.pump.representation;
    if (way.swap_representations) std::swap(rep_1, rep_2);
    const int usage = p.file.Usage(p.pump, p.bolt);
    p.file.Place(usage, rep_1, rep_2, way.swap_items ? p.to : p.from,
                 way.swap_items ? p.from : p.to);
    const StepAssembly assembly = p.file.Read();
    ASSERT_EQ(assembly.models[1].components.size(), 1u);
    EXPECT_EQ(Rows(assembly.models[1].components[0].placement), kPlaced) << way.name;
  }
}

TEST(StepPlacement, PlacesByMappedItemsWithAndWithoutUsages) {
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

TEST(StepPlacement, TransformationOperatorsMoveScaleAndMirror) {
  struct Case {
    const char* axes;  // of the operator: axis1, axis2
    const char* scale;
    const char* rows;
  };
  const Case cases[] = {
      {"$,$", "1.", "1 0 0 0 1 0 0 0 1 7 0 0 "},
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

}  // namespace
}  // namespace wb
