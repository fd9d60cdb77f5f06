// Every button of the dimension palette, pressed in its dialog: what the dimension then has.
#include <functional>

#include "tests/plugin_host.h"
#include "workbench/session/session.h"

namespace wb {
namespace {

constexpr int kDimension = 5;

// A letter of the host's symbol font in a text.
std::string Symbol(char letter) {
  return std::string("\x01") + letter + "\x02";
}

// Presses whatever the test wants in the dialog that opens.
class Draughtsman : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override { work(dialog); }
  std::function<void(LiveDialog&)> work;
};

class DimModifyWorld : public PluginHost {
 protected:
  DimModifyWorld() {
    host_.user = &draughtsman_;
    EXPECT_EQ(plugin_.Start(), 0);
    Model drawing(ModelName{"plate", ModelKind::kDrawing});
    drawing.As<DrawingContent>()->sheets.push_back({"A2"});
    Dimension dimension;
    dimension.id = kDimension;
    dimension.value = 300;
    drawing.As<DrawingContent>()->dimensions.Add(std::move(dimension));
    drawing_ = &host_.session.Add(std::move(drawing));
    host_.session.ActivateWindow(host_.session.ShowInWindow(*drawing_).id);
  }
  ~DimModifyWorld() override { host_.user = &user_; }

  // The dimension, with the given text before, after a press.
  Dimension Press(const std::string& button, const std::string& text = "") {
    Dimension& dimension = *drawing_->As<DrawingContent>()->dimensions.Find(kDimension);
    dimension.text = text;
    dimension.tolerance = ToleranceType::kNominal;
    dimension.upper = dimension.lower = -1;
    host_.session.selection_buffer = {{PRO_DIMENSION, kDimension, drawing_, drawing_, {}}};
    draughtsman_.work = [&](LiveDialog& dialog) {
      EXPECT_TRUE(dialog.state.UserSetField("numInput", "4").Done());
      EXPECT_TRUE(dialog.state.UserSetField("depthInput", "12.5").Done());
      EXPECT_TRUE(dialog.state.UserPress(button).Done()) << button;
      EXPECT_TRUE(dialog.Fire(button, kActivateEvent)) << button;
      EXPECT_TRUE(dialog.Fire("", kCloseEvent));
    };
    EXPECT_EQ(RunCommand("QmDimModify").status, 0);
    return dimension;
  }

  Draughtsman draughtsman_;
  Plugin plugin_{Installed().dll()};
  Model* drawing_ = nullptr;
};

TEST_F(DimModifyWorld, TextsToTheCharacter) {
  const struct {
    const char* button;
    const char* before;
    std::string after;
  } cases[] = {
      {"preBt1", "old\nlines", "R@D"},
      {"preBt2", "old", Symbol('n') + "@D"},
      {"preBt3", "old", "M@D"},
      {"preBt4", "old", "S" + Symbol('n') + "@D"},
      {"preBt5", "old", "SR@D"},
      {"preBt6", "old", "t@D"},
      {"preBt7", "old", "(@D)"},
      {"preBt8", "old", Symbol('o') + "@D"},
      {"preBt9", "old", Symbol('w') + "@D"},
      {"preBt10", "old", Symbol('v') + "@D"},
      {"preBt11", "M@D\nsecond", "4×M@D"},
      {"preBt11", "", "4×@D"},
      {"sufBt1", "M@D\nsecond", "M@DEQS"},
      {"sufBt1", "", "@DEQS"},
      {"sufBt2", "M@D", "M@D" + Symbol('x') + "12.5"},
      {"sufBt2", "", "@D" + Symbol('x') + "12.5"},
  };
  for (const auto& [button, before, after] : cases) {
    const Dimension dimension = Press(button, before);
    EXPECT_EQ(dimension.text, after) << button;
    EXPECT_EQ(dimension.tolerance, ToleranceType::kNominal) << button;
    // Only what builds on the present text lets the selection go.
    const bool is_prefix =
        std::string(button).starts_with("preBt") && std::string(button) != "preBt11";
    EXPECT_EQ(host_.session.selection_buffer.empty(), !is_prefix) << button;
  }
  EXPECT_EQ(TakeBreaches(), Lines());
}

TEST_F(DimModifyWorld, TolerancesToTheNumber) {
  const std::vector<double> upper = {0.01, 0.02, 0.03, 0.05, 0.1, 0.2, 0.5, 1, 2, 3, 5, 6, 10};
  const std::vector<double> lower = {0.01, 0.02, 0.03, 0.05, 0.1, 0.2, 0.5, 1, 2, 3, 6, 10, 20};
  const std::vector<double> both = {0.01, 0.02, 0.03, 0.05, 0.1, 0.2, 0.3, 0.5, 1, 2};
  const struct {
    const char* buttons;
    ToleranceType type;
    bool above, below;
    const std::vector<double>& values;
  } lists[] = {{"upTolBt", ToleranceType::kPlusMinus, true, false, upper},
               {"downTolBt", ToleranceType::kPlusMinus, false, true, lower},
               {"MirTolBt", ToleranceType::kSymmetricSuperscript, true, true, both}};
  for (const auto& list : lists) {
    for (size_t i = 0; i < list.values.size(); ++i) {
      const std::string button = list.buttons + std::to_string(i + 1);
      const Dimension dimension = Press(button, "M@D");
      EXPECT_EQ(dimension.tolerance, list.type) << button;
      EXPECT_EQ(dimension.upper, list.above ? list.values[i] : 0) << button;
      EXPECT_EQ(dimension.lower, list.below ? list.values[i] : 0) << button;
      EXPECT_EQ(dimension.text, "M@D") << button;
      EXPECT_FALSE(host_.session.selection_buffer.empty()) << button;
    }
  }
  EXPECT_EQ(TakeBreaches(), Lines());
}

}  // namespace
}  // namespace wb
