// Twelve views of boxes of every order of extents and every tie, of an assembly, and in hosts that
// turn otherwise, against a computation of their places that knows nothing of views: a box on its
// side, and rectangles beside each other.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "tests/plugin_host.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/session/model_file.h"
#include "workbench/session/session.h"

namespace wb {
namespace {

// As the main view shows it.
struct LaidBox {
  double width, height, depth;
};

// The extents across, up and into the sheet, widest across, then highest; ties as the command has
// always decided them.
LaidBox Laid(int dx, int dy, int dz) {
  const auto of = [](int w, int h, int d) {
    return LaidBox{static_cast<double>(w), static_cast<double>(h), static_cast<double>(d)};
  };
  if (dx >= dy && dy >= dz) return of(dx, dy, dz);
  if (dz > dx && dz >= dy && dy >= dx) return of(dz, dy, dx);
  if (dx >= dz && dz >= dy) return of(dx, dz, dy);
  if (dy >= dz && dz >= dx) return of(dy, dz, dx);
  return dy > dz ? of(dy, dx, dz) : of(dz, dx, dy);
}

Outline Around(double x, double y, double width, double height) {
  return {x - width / 2, y - height / 2, x + width / 2, y + height / 2};
}

// The seven views of a set around the middle of its main view.
std::array<Outline, 7> SetAround(double x, double y, const LaidBox& box) {
  constexpr double kSpace = 50;
  const auto [w, h, d] = box;
  const Outline main = Around(x, y, w, h);
  const Outline below = Around(x, main[1] - kSpace - d / 2, w, d);
  const Outline above = Around(x, main[3] + kSpace + d / 2, w, d);
  const Outline left = Around(main[0] - kSpace - d / 2, y, d, h);
  const Outline right = Around(main[2] + kSpace + d / 2, y, d, h);
  const Outline back = Around(right[2] + kSpace + w / 2, y, w, h);
  const double tilt = 35 * std::numbers::pi / 180;
  const double across = (w + d) * std::numbers::sqrt2 / 2;
  const double up = h * std::cos(tilt) + across * std::sin(tilt);
  const Outline made = Around(below[2], below[1], across, up);
  const double move_x = (made[2] - below[0]) / 2 + kSpace;
  const double move_y = -(made[3] - below[1]) / 2 - kSpace;
  return {main,
          below,
          above,
          left,
          right,
          back,
          {made[0] + move_x, made[1] + move_y, made[2] + move_x, made[3] + move_y}};
}

std::vector<Outline> Wanted(LaidBox box, bool upright, bool twelve) {
  const bool turns = upright ? box.height - box.width < 0.001 : box.height - box.width > 0.001;
  if (turns) std::swap(box.width, box.height);
  const auto first = SetAround(200, 600, box);
  std::vector<Outline> all(first.begin(), first.end());
  if (twelve) {
    const double edge = std::max(first[5][2], first[6][2]);
    const auto second = SetAround(box.width / 2 + edge + box.depth + 200, 600, box);
    all.insert(all.end(), second.begin(), second.end());
  }
  return all;
}

class Designer : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    EXPECT_TRUE(dialog.state.UserSelect("DirectionRadio", {direction}).Done());
    EXPECT_TRUE(dialog.state.UserSelect("ViewsRadio", {views}).Done());
    EXPECT_TRUE(dialog.state.UserPress("ApplyBt").Done());
    EXPECT_TRUE(dialog.Fire("ApplyBt", kActivateEvent));
  }
  int AnswerMessageBox(const MessageBox& box) override {
    ADD_FAILURE() << box.text;
    return 1;
  }

  std::string direction;
  std::string views;
};

class TweViewsWorld : public PluginHost {
 protected:
  TweViewsWorld() {
    host_.session.ChangeDirectory(folder_.path);
    Model drawing(ModelName{"qm", ModelKind::kDrawing});
    drawing.As<DrawingContent>()->sheets.push_back({"A0"});
    WriteModelFile(drawing, Installed().tree() / "tp" / "qm.drw.1");
    host_.user = &designer_;
    EXPECT_EQ(plugin_.Start(), 0);
  }
  ~TweViewsWorld() override {
    host_.user = &user_;
    std::filesystem::remove(Installed().tree() / "tp" / "qm.drw.1");
  }

  // The views of what is shown in a window of its own in a session without anything else.
  const DrawingContent& Draw(Model model) {
    const std::string name = model.id.name + "-12";
    Model& added = host_.session.Add(std::move(model));
    host_.session.ActivateWindow(host_.session.ShowInWindow(added).id);
    EXPECT_EQ(RunCommand("TweViews").status, 0);
    return *host_.session.Find({name, ModelKind::kDrawing})->As<DrawingContent>();
  }

  void Clear() {
    while (!host_.session.models().empty()) host_.session.Erase(*host_.session.models().front());
  }

  static Model BoxPart(const char* name, const Box& box) {
    Model part(ModelName{name, ModelKind::kPart});
    part.As<SolidContent>()->surfaces.Add({1, box});
    return part;
  }

  void Wish(bool upright, bool twelve) {
    designer_.direction = upright ? "main-v" : "main-h";
    designer_.views = twelve ? "twelve" : "six-hidden";
  }

  // Of a box off the origin.
  void ExpectViews(int dx, int dy, int dz) {
    SCOPED_TRACE(std::to_string(dx) + " " + std::to_string(dy) + " " + std::to_string(dz) + " " +
                 designer_.direction + " " + designer_.views);
    const bool twelve = designer_.views == "twelve";
    Clear();
    const DrawingContent& drawing =
        Draw(BoxPart("box", {{100, -50, 7.5}, {100.0 + dx, -50.0 + dy, 7.5 + dz}}));
    ExpectOutlines(drawing, Wanted(Laid(dx, dy, dz), designer_.direction == "main-v", twelve));
    size_t at = 0;
    for (const DrawingView& view : drawing.views) {
      const bool hidden = !twelve || at++ >= 7;
      EXPECT_EQ(view.display.style, hidden ? DisplayStyle::kHiddenLine : DisplayStyle::kNoHidden);
    }
  }

  static void ExpectOutlines(const DrawingContent& drawing, const std::vector<Outline>& wanted) {
    ASSERT_EQ(drawing.views.size(), wanted.size());
    size_t at = 0;
    for (const DrawingView& view : drawing.views) {
      for (size_t side = 0; side < 4; ++side) {
        EXPECT_NEAR(view.outline[side], wanted[at][side], 1e-9) << at << ", " << side;
      }
      ++at;
    }
  }

  const TemporaryFolder folder_{"workbench twe_views"};
  Designer designer_;
  Plugin plugin_{Installed().dll()};
};

TEST_F(TweViewsWorld, StandWhereTheyShouldForEveryOrderAndEveryTie) {
  constexpr int kExtents[] = {10, 20, 30};
  for (const bool upright : {false, true}) {
    for (const bool twelve : {false, true}) {
      Wish(upright, twelve);
      for (int i = 0; i < 27; ++i) {
        ExpectViews(kExtents[i % 3], kExtents[i / 3 % 3], kExtents[i / 9]);
      }
    }
  }
  EXPECT_EQ(TakeBreaches(), Lines());
}

// Whatever the host calls its axes and whichever way it turns; where that is another turn than the
// wanted one, the matrix is set, or the view made anew.
TEST_F(TweViewsWorld, StandWhereTheyShouldInHostsThatTurnOtherwise) {
  bool Habits::*const kHabits[] = {&Habits::rotation_axes_count_from_one,
                                   &Habits::view_rotates_the_other_way,
                                   &Habits::view_turn_is_refused, &Habits::view_turns_the_other_way,
                                   &Habits::view_turns_about_the_other_axis};
  constexpr int kOrders[][3] = {{30, 20, 10}, {30, 10, 20}, {20, 30, 10},
                                {10, 30, 20}, {20, 10, 30}, {10, 20, 30}};
  Wish(true, true);
  for (size_t i = 0; i < std::size(kHabits); ++i) {
    SCOPED_TRACE("habit " + std::to_string(i));
    host_.habits.*kHabits[i] = true;
    for (const auto& [dx, dy, dz] : kOrders) ExpectViews(dx, dy, dz);
    host_.habits.*kHabits[i] = false;
  }
  EXPECT_EQ(TakeBreaches(), Lines());
}

// A block as it is and the same block upright beside it take 150 by 90 by 25 together; what is
// suppressed far away takes nothing.
TEST_F(TweViewsWorld, OfAnAssemblyShowTheExtentsOfAllItsComponents) {
  constexpr Placement kUpright = {{{0, 1, 0, 0}, {-1, 0, 0, 0}, {0, 0, 1, 0}, {0, 50, 5, 1}}};
  Placement beside = kIdentityPlacement;
  beside[3] = {100, 0, 0, 1};
  Placement away = kIdentityPlacement;
  away[3] = {5000, 0, 0, 1};
  for (const bool upright : {false, true}) {
    SCOPED_TRACE(upright);
    Wish(upright, true);
    Clear();
    const ModelName block = host_.session.Add(BoxPart("block", {{0, 0, 0}, {40, 10, 20}})).id;
    Model pump(ModelName{"pump", ModelKind::kAssembly});
    auto& components = pump.As<SolidContent>()->features;
    components.Add(NewComponent(1, block, beside));
    components.Add(NewComponent(2, block, kUpright));
    components.Add(NewComponent(3, block, away));
    components.Find(3)->status = FeatureStatus::kSuppressed;
    ExpectOutlines(Draw(std::move(pump)), Wanted({150, 90, 25}, upright, true));
  }
  EXPECT_EQ(TakeBreaches(), Lines());
}

}  // namespace
}  // namespace wb
