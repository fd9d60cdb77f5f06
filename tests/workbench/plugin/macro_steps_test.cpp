// Macros as the stand-in reads and plays them.
#include "workbench/plugin/macro_steps.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

constexpr char kOpenGallery[] = "~ Select `main_dlg_cur` `ProCmdViewGallery.view`;";
constexpr char kMenu[] =
    "~ Select `main_dlg_cur` `ProCmdViewGallery_layoutph.palette_holder.clearAppearance`;";
constexpr char kClear[] = "~ Activate `main_dlg_cur` `clearAllAppearance`;";

TEST(ParseMacro, PartsAtSemicolonsOutsideOfNames) {
  const auto steps = ParseMacro("~ Select `a b`  `c;d` ;~ Activate `e`; ProCmdX;;  ");
  ASSERT_EQ(steps.size(), 3u);
  EXPECT_EQ(steps[0].action, "~ Select");
  EXPECT_EQ(steps[0].names, (std::vector<std::string>{"a b", "c;d"}));
  EXPECT_EQ(steps[1].action, "~ Activate");
  EXPECT_EQ(steps[2].action, "ProCmdX");
  EXPECT_EQ(steps[2].text, "ProCmdX");
}

class PlayedMacro : public testing::Test {
 protected:
  PlayedMacro() {
    Model& bolt = session_.Add(Model({"bolt", ModelKind::kPart}));
    bolt.solid().appearance.emplace();
    session_.ActivateWindow(session_.ShowInWindow(bolt).id);
  }
  bool IsColoured() { return session_.Current()->solid().appearance.has_value(); }

  Session session_;
};

TEST_F(PlayedMacro, ClearsOnceTheQuestionIsAnsweredWithYes) {
  const std::string asked = std::string(kOpenGallery) + kMenu + kClear;
  EXPECT_EQ(PlayMacro(asked + "~ Activate `UI Message Dialog` `no`;", session_), "");
  EXPECT_TRUE(IsColoured());
  EXPECT_EQ(PlayMacro(asked + "~ Activate `UI Message Dialog` `yes`;", session_), "");
  EXPECT_FALSE(IsColoured());
}

TEST_F(PlayedMacro, TellsWhatItDoesNotKnow) {
  EXPECT_NE(PlayMacro("~ Command `ProCmdDwgDimNewRef` ;", session_), "");
  EXPECT_NE(PlayMacro("ProCmdX;", session_), "");
  EXPECT_NE(PlayMacro(std::string(kOpenGallery) + kClear, session_), "");
  EXPECT_NE(PlayMacro("~ Activate `UI Message Dialog` `yes`;", session_), "");
  // Another window's gallery, and a menu that nobody has opened.
  EXPECT_NE(PlayMacro("~ Select `other` `ProCmdViewGallery.view`;", session_), "");
  EXPECT_NE(PlayMacro("~ Close `main_dlg_cur` `ProCmdViewGallery.view`;", session_), "");
  // A question that nobody answers.
  EXPECT_NE(PlayMacro(std::string(kOpenGallery) + kMenu + kClear, session_), "");
  EXPECT_TRUE(IsColoured());
}

}  // namespace
}  // namespace wb
