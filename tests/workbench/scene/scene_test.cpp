// Assemblies as pictures: which boxes are drawn, and how many of them.
#include "workbench/scene/scene.h"

#include <gtest/gtest.h>

#include "workbench/scene/scene_svg.h"
#include "workbench/session/session.h"

namespace wb {
namespace {

constexpr Placement At(double x, double y, double z) {
  Placement placement = kIdentityPlacement;
  placement[3] = {x, y, z, 1};
  return placement;
}

class PicturedAssembly : public testing::Test {
 protected:
  Model& AddPart(const std::string& name, const Box& box) {
    Model part({name, ModelKind::kPart});
    part.solid().surfaces.Add({1, box});
    return session_.Add(std::move(part));
  }
  Model& AddAssembly(const std::string& name) {
    return session_.Add(Model({name, ModelKind::kAssembly}));
  }
  void Place(Model& assembly, Model& part, const Placement& placement) {
    Feature feature = NewComponent(NextId(assembly.solid().features), part.id, placement);
    feature.component->link.model = &part;
    assembly.solid().features.Add(feature);
  }

  Session session_;
};

TEST_F(PicturedAssembly, LeavesOutWhatIsNotShown) {
  Model& cube = AddPart("cube", {{0, 0, 0}, {1, 1, 1}});
  Model& empty = session_.Add(Model({"empty", ModelKind::kPart}));
  Model& inner = AddAssembly("inner");
  Place(inner, cube, At(5, 0, 0));
  Model& top = AddAssembly("top");
  for (int i = 0; i < 4; ++i) Place(top, cube, At(0, 0, 3 * i));
  Place(top, inner, At(0, 0, 0));
  Place(top, empty, At(0, 0, 0));
  EXPECT_EQ(TakeScene(top).boxes.size(), 5u);
  top.solid().features[0].hidden = true;
  top.solid().features[1].visible = false;
  top.solid().features[2].status = FeatureStatus::kSuppressed;
  EXPECT_EQ(TakeScene(top).boxes.size(), 2u);
  top.solid().features[4].hidden = true;
  EXPECT_EQ(TakeScene(top).boxes.size(), 1u);
  EXPECT_EQ(TakeScene(empty).model, "");
}

TEST_F(PicturedAssembly, KeepsTheLargestOfTooMany) {
  Model& top = AddAssembly("top");
  for (int i = 11; i <= 30; ++i) {
    const double size = i;
    Place(top, AddPart("p" + std::to_string(i), {{0, 0, 0}, {size, size, size}}), At(30 * i, 0, 0));
  }
  const Scene scene = TakeScene(top, 5);
  EXPECT_EQ(scene.boxes.size(), 5u);
  EXPECT_EQ(scene.left_out, 15u);
  for (const SceneBox& box : scene.boxes) EXPECT_GE(box.model, "p26.prt");
}

TEST_F(PicturedAssembly, CountsWhatItDoesNotMeet) {
  Model& cube = AddPart("cube", {{0, 0, 0}, {8, 8, 8}});
  Model& row = AddAssembly("row");
  for (int i = 0; i < 300; ++i) Place(row, cube, At(10 * i, 0, 0));
  row.solid().features[0].hidden = true;
  Model& top = AddAssembly("top");
  for (int i = 0; i < 200; ++i) Place(top, row, At(0, 10 * i, 0));
  const Scene scene = TakeScene(top, 100);
  EXPECT_EQ(scene.boxes.size(), 100u);
  EXPECT_EQ(scene.left_out, 200u * 299 - 100);
  EXPECT_FALSE(scene.are_all_met);
  EXPECT_TRUE(TakeScene(row, 100).are_all_met);
}

TEST_F(PicturedAssembly, IsDrawnForOneBoxAndForTwoThousand) {
  Model& cube = AddPart("cube<1>", {{0, 0, 0}, {8, 8, 8}});
  cube.solid().appearance.emplace().transparency = 0.618;
  const Scene one = TakeScene(cube);
  const std::string svg = DrawScene(one, FrameOf(one));
  EXPECT_NE(svg.find("<title>cube&lt;1&gt;.prt</title>"), svg.npos);
  EXPECT_NE(svg.find("fill-opacity=\"0.382\""), svg.npos);
  EXPECT_EQ(svg.find("nan"), svg.npos);
  EXPECT_EQ(svg.find("crispEdges"), svg.npos);
  Model& cross = AddAssembly("cross");
  Place(cross, cube, At(0, 0, 0));
  Place(cross, cube, At(2, 2, 2));
  const Scene cut = TakeScene(cross);
  EXPECT_NE(DrawScene(cut, FrameOf(cut)).find("crispEdges"), svg.npos);
  Model& top = AddAssembly("top");
  for (int i = 0; i < 2500; ++i) Place(top, cube, At(10 * (i % 50), 10 * (i / 50), 0));
  const Scene many = TakeScene(top);
  EXPECT_EQ(many.boxes.size(), 2000u);
  EXPECT_EQ(many.left_out, 500u);
  const std::string large = DrawScene(many, FrameOf(many));
  EXPECT_LT(large.size(), 600'000u);
  EXPECT_EQ(large.find("<title>"), large.npos);
}

}  // namespace
}  // namespace wb
