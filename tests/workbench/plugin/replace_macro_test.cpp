// The macro that replaces a component, step by step.
#include "workbench/plugin/replace_macro.h"

#include <gtest/gtest.h>

#include "tests/workbench/host/host_fixture.h"

namespace wb {
namespace {

constexpr char kPopup[] = "~`rmb_popup` `PopupMenu`;";
constexpr char kOpenReplace[] =
    "~`rmb_popup` `PopupMenu`;~ Command `ProCmdReplComp@PopupMenuGraphicWinStack` ;";
constexpr char kOlderOpen[] = "~ Command `ProCmdReplace` ;";
constexpr char kUnrelated[] =
    "~ Select `gen_repl_dlg` `ByCompPH.rpl_method_radio` 1 `Unrelated Component`;";
constexpr char kNew[] = "~ Activate `gen_repl_dlg` `PB_NewComp`;";
constexpr char kFolder[] = "~ Activate `file_open` `Current Dir`;";
constexpr char kDone[] = "~ Activate `gen_repl_dlg` `DoneBtn`;";

class ReplaceMacro : public HostFixture {
 protected:
  ReplaceMacro() {
    Model& pin = host_.session.Add(Model({"pin", ModelKind::kPart}));
    pin.folder = folder_;
    host_.session.Save(pin);
    lid_ = &host_.session.Add(Model({"lid", ModelKind::kPart}));
    box_ = &ShowAssembly();
    host_.session.Resolve(*box_);
    host_.session.selection_buffer = {{PRO_PART, 0, lid_, box_, {7}}};
  }
  static std::string Choose(const std::string& file) {
    return "~ Activate `file_open` `Ph_list.Filelist` 1 `" + file + "`;";
  }
  static std::string MacroFor(const std::string& file, const std::string& open = kOpenReplace) {
    return open + kUnrelated + kNew + kFolder + Choose(file) + kDone;
  }
  std::string Refusal(const std::string& file) {
    const PlayedReplacement played = PlayReplaceMacro(MacroFor(file), host_.session);
    EXPECT_EQ(played.unknown, "");
    return played.refused;
  }

  Model* lid_ = nullptr;
  Model* box_ = nullptr;
};

TEST_F(ReplaceMacro, TheListShowsFilesOfTheWorkingDirectoryInLowerCase) {
  EXPECT_EQ(Refusal("PIN.prt"), "the list of files has no PIN.prt");
  EXPECT_EQ(Refusal("lid.prt"), "the list of files has no lid.prt");
  EXPECT_EQ(box_->FindFeature(7)->ComponentModel(), lid_);
  EXPECT_EQ(Refusal("pin.prt"), "");
  EXPECT_EQ(box_->FindFeature(7)->component->link.name.Text(), "pin.prt");
  EXPECT_EQ(Refusal("pin.prt"), "no component is selected");
}

TEST_F(ReplaceMacro, NoAssemblyTakesItsOwnPlace) {
  box_->folder = folder_;
  host_.session.Save(*box_);
  EXPECT_EQ(Refusal("box.asm"), "box.asm would hold itself");
  EXPECT_EQ(box_->FindFeature(7)->ComponentModel(), lid_);
}

TEST_F(ReplaceMacro, AStepThatComesTooEarlyIsUnknown) {
  const std::string begun = std::string(kOpenReplace) + kUnrelated;
  for (const std::string& wrong :
       {begun + kFolder, std::string(kNew), begun + "~ Activate `other` `x`;",
        std::string(kOpenReplace) +
            "~ Select `gen_repl_dlg` `ByCompPH.rpl_method_radio` 1 `Family`;",
        std::string(kOpenReplace) +
            "~ Select `gen_repl_dlg` `ByCompPH.rpl_method_radio` `Unrelated Component`;",
        begun + kNew}) {
    EXPECT_NE(PlayReplaceMacro(wrong, host_.session).unknown, "") << wrong;
  }
}

TEST_F(ReplaceMacro, EachReleaseOpensTheDialogInItsOwnWay) {
  const std::string older = MacroFor("pin.prt", kOlderOpen);
  const std::string without_popup =
      MacroFor("pin.prt", std::string(kOpenReplace).substr(sizeof(kPopup) - 1));
  const std::string newer = MacroFor("pin.prt");
  EXPECT_NE(PlayReplaceMacro(older, host_.session).unknown, "");
  EXPECT_NE(PlayReplaceMacro(without_popup, host_.session).unknown, "");
  host_.release = "Creo 2.0";
  EXPECT_NE(PlayReplaceMacro(newer, host_.session).unknown, "");
  EXPECT_EQ(box_->FindFeature(7)->ComponentModel(), lid_);
  EXPECT_EQ(PlayReplaceMacro(older, host_.session).unknown, "");
  EXPECT_EQ(box_->FindFeature(7)->component->link.name.Text(), "pin.prt");
}

TEST_F(ReplaceMacro, AFileThatCannotBeReadReplacesNothing) {
  WriteFile("broken.prt.1", "no model");
  EXPECT_EQ(Refusal("broken.prt"), "broken.prt cannot be read");
  EXPECT_EQ(box_->FindFeature(7)->ComponentModel(), lid_);
}

}  // namespace
}  // namespace wb
