// Assemblies as pictures: which boxes are drawn, in which colours, and which one covers which.
#include "workbench/scene/scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "workbench/scene/painters_order.h"
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
  std::vector<std::string> NamesIn(const Scene& scene) {
    std::vector<std::string> names;
    for (const SceneBox& box : scene.boxes) names.push_back(box.model);
    return names;
  }

  Session session_;
};

using Names = std::vector<std::string>;

TEST_F(PicturedAssembly, PaintsWhatIsBehindAndBelowFirst) {
  Model& cube = AddPart("cube", {{0, 0, 0}, {10, 10, 10}});
  Model& plate = AddPart("plate", {{0, 0, 0}, {100, 100, 1}});
  Model& wall = AddPart("wall", {{0, 0, 0}, {100, 1, 100}});
  Model& top = AddAssembly("top");
  Place(top, cube, At(45, 45, 1));
  Place(top, plate, At(0, 0, 0));
  Place(top, wall, At(0, 100, 0));
  // The viewer stands in front, at lower y, and above: the wall stands behind the plate, and the
  // cube on it.
  const Scene scene = TakeScene(top);
  EXPECT_EQ(NamesIn(scene).back(), "cube.prt");
  EXPECT_EQ(scene.model, "top.asm");
  EXPECT_EQ(scene.boxes.front().faces.size(), 3u);
}

// Around a tray with a rim is a box that reaches above its ground.
TEST_F(PicturedAssembly, PaintsWhatStandsInATrayAfterIt) {
  Model& tray = AddPart("tray", {{0, 0, 0}, {1500, 500, 35}});
  Model& motor = AddPart("motor", {{0, 0, 0}, {500, 320, 330}});
  Model& top = AddAssembly("top");
  Place(top, motor, At(200, 90, 33));
  Place(top, tray, At(0, 0, 0));
  EXPECT_EQ(NamesIn(TakeScene(top)), (Names{"tray.prt", "motor.prt"}));
}

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

TEST_F(PicturedAssembly, ColoursPartsByThemselvesOrWhatIsNearestAbove) {
  Model& own = AddPart("own", {{0, 0, 0}, {1, 1, 1}});
  Model& plain = AddPart("plain", {{0, 0, 0}, {1, 1, 1}});
  Model& faced = AddPart("faced", {{0, 0, 0}, {1, 1, 1}});
  Model& top = AddAssembly("top");
  own.solid().appearance.emplace().colour = {1, 0, 0};
  faced.solid().appearance.emplace().colour = {1, 0, 0};
  faced.solid().surfaces[0].appearance.emplace().transparency = 1;
  for (Model* const part : {&own, &plain, &faced}) Place(top, *part, At(0, 0, 0));
  const auto of = [&](const char* name) {
    const Scene scene = TakeScene(top);
    return *std::ranges::find(scene.boxes, std::string(name) + ".prt", &SceneBox::model);
  };
  EXPECT_EQ(of("plain").colour, Appearance().colour);
  top.solid().appearance.emplace().colour = {0, 0, 1};
  EXPECT_EQ(of("own").colour, (Rgb{1, 0, 0}));
  EXPECT_EQ(of("plain").colour, (Rgb{0, 0, 1}));
  EXPECT_EQ(of("faced").transparency, 1);
}

TEST_F(PicturedAssembly, KeepsTheLargestOfTooMany) {
  Model& top = AddAssembly("top");
  for (int i = 1; i <= 20; ++i) {
    const double size = i;
    Place(top, AddPart("p" + std::to_string(i), {{0, 0, 0}, {size, size, size}}), At(30 * i, 0, 0));
  }
  const Scene scene = TakeScene(top, 5);
  EXPECT_EQ(scene.boxes.size(), 5u);
  EXPECT_EQ(scene.left_out, 15u);
  std::vector<std::string> names;
  for (const SceneBox& box : scene.boxes) names.push_back(box.model);
  std::ranges::sort(names);
  EXPECT_EQ(names, (Names{"p16.prt", "p17.prt", "p18.prt", "p19.prt", "p20.prt"}));
}

TEST_F(PicturedAssembly, TakesComponentsInTheirAssemblysUnits) {
  Model& inch = AddPart("inch", {{0, 0, 0}, {1, 1, 1}});
  inch.solid().units = "Inch Pound Second (IPS)";
  Model& top = AddAssembly("top");
  Place(top, inch, At(0, 0, 0));
  const SceneFrame large = FrameOf(TakeScene(top));
  inch.solid().units = kDefaultUnits;
  const SceneFrame small = FrameOf(TakeScene(top));
  EXPECT_NEAR(large[2] - large[0], 25.4 * (small[2] - small[0]), 1e-9);
}

// Whether a point of the picture lies inside a face.
bool Covers(const SceneFace& face, const ScenePoint& at) {
  int sign = 0;
  for (size_t i = 0; i < 4; ++i) {
    const ScenePoint& a = face.corners[i];
    const ScenePoint& b = face.corners[(i + 1) % 4];
    const double side = (b[0] - a[0]) * (at[1] - a[1]) - (b[1] - a[1]) * (at[0] - a[0]);
    const int now = side > 1e-9 ? 1 : side < -1e-9 ? -1 : 0;
    if (now == 0 || (sign != 0 && now != sign)) return false;
    sign = now;
  }
  return true;
}

bool LieInEachOther(const Box& a, const Box& b) {
  for (size_t k = 0; k < 3; ++k) {
    if (a.max[k] <= b.min[k] || b.max[k] <= a.min[k]) return false;
  }
  return true;
}

// The place of the box that is painted last at a point; -1 for none.
int PaintedAt(const Scene& scene, const ScenePoint& at) {
  std::string painted = "b-1";
  for (const SceneBox& box : scene.boxes) {
    for (const SceneFace& face : box.faces) {
      if (Covers(face, at)) painted = box.model;
    }
  }
  return std::stoi(painted.substr(1));
}

// The place of the box that a ray from the viewer meets first there; -1 for none.
int MetAt(const std::vector<Box>& boxes, const ScenePoint& at) {
  const double side = std::sqrt(0.5), rise = std::sqrt(1.0 / 6), depth = std::sqrt(1.0 / 3);
  const Point from = {side * at[0] - rise * at[1], side * at[0] + rise * at[1], 2 * rise * at[1]};
  const Point way = {depth, -depth, depth};
  int met = -1;
  double nearest = -HUGE_VAL;
  for (size_t b = 0; b < boxes.size(); ++b) {
    double enter = -HUGE_VAL, leave = HUGE_VAL;
    for (size_t k = 0; k < 3; ++k) {
      const double one = (boxes[b].min[k] - from[k]) / way[k];
      const double two = (boxes[b].max[k] - from[k]) / way[k];
      enter = std::max(enter, std::min(one, two));
      leave = std::min(leave, std::max(one, two));
    }
    if (leave - enter < 1e-6 || leave <= nearest) continue;
    nearest = leave;
    met = static_cast<int>(b);
  }
  return met;
}

// Many boxes, every third of which may lie in others, as shafts lie in casings. At each point of
// the picture the box that is painted last is the one that a ray from the viewer meets first, or
// lies in it. (Boxes that cover each other in a ring have no right order; these form none.)
TEST_F(PicturedAssembly, PaintsLastWhatARayMeetsFirst) {
  for (const unsigned seed : {15u, 40u, 60u, 65u}) {
    std::mt19937 random(seed);
    const auto number = [&](int most) { return static_cast<int>(random() % most); };
    Model& top = AddAssembly("top" + std::to_string(seed));
    std::vector<Box> boxes;
    for (int i = 0; i < 300 && boxes.size() < 60; ++i) {
      const Point low = {double(number(40)), double(number(40)), double(number(40))};
      const bool may_lie_in_others = seed > 15 && boxes.size() % 3 == 0;
      const int most = may_lie_in_others ? 18 : 9;
      const auto high = [&](size_t axis) { return low[axis] + 1 + number(most); };
      const Box box{low, {high(0), high(1), high(2)}};
      const auto meets = [&](const Box& other) { return LieInEachOther(box, other); };
      if (!may_lie_in_others && std::ranges::any_of(boxes, meets)) continue;
      const std::string name = "b" + std::to_string(boxes.size());
      Place(top, AddPart(name + "_" + std::to_string(seed), box), At(0, 0, 0));
      boxes.push_back(box);
    }
    const Scene scene = TakeScene(top);
    ASSERT_EQ(scene.boxes.size(), boxes.size());
    int compared = 0;
    for (int i = 0; i < 4000; ++i) {
      const ScenePoint at = {number(7000) / 100.0, number(9000) / 100.0 - 30};
      const int painted = PaintedAt(scene, at);
      const int met = MetAt(boxes, at);
      if (painted < 0 || met < 0) continue;
      ++compared;
      const bool is_right = painted == met || LieInEachOther(boxes[static_cast<size_t>(painted)],
                                                             boxes[static_cast<size_t>(met)]);
      EXPECT_TRUE(is_right) << seed << ": " << painted << " over " << met;
    }
    EXPECT_GT(compared, 500);
  }
}

TEST_F(PicturedAssembly, IsDrawnForOneBoxAndForTwoThousand) {
  Model& cube = AddPart("cube<1>", {{0, 0, 0}, {8, 8, 8}});
  cube.solid().appearance.emplace().transparency = 0.618;
  const Scene one = TakeScene(cube);
  const std::string svg = DrawScene(one, FrameOf(one));
  EXPECT_NE(svg.find("<title>cube&lt;1&gt;.prt</title>"), svg.npos);
  EXPECT_NE(svg.find("fill-opacity=\"0.382\""), svg.npos);
  EXPECT_EQ(svg.find("nan"), svg.npos);
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
