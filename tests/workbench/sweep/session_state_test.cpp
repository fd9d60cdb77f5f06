// The comparison by which a sweep proves that it has put a session back.
#include <algorithm>

#include "tests/workbench/host/host_fixture.h"
#include "workbench/script/script_snapshot.h"
#include "workbench/sweep/session_state.h"

namespace wb {
namespace {

class SessionStates : public HostFixture {
 protected:
  SessionStates() {
    WriteFile("last.ini", "[last]\r\nmodel=box\r\n");
    Model& assembly = ShowAssembly();
    Model sheet({"box", ModelKind::kDrawing});
    DrawingContent& content = *sheet.As<DrawingContent>();
    content.sheets = {Sheet()};
    ShowModel(content, {assembly.id, &assembly});
    content.views.Add({.id = 1, .shows = ModelLink{assembly.id, &assembly}});
    drawing_ = &host_.session.Add(std::move(sheet));
    host_.options["pro_format_dir"] = {"D:"};
  }
  SessionState Now() { return StateNow(host_, {folder_}); }

  Model* drawing_;
};

TEST_F(SessionStates, EveryChangeAroundTheModelsIsSeenAndPutBack) {
  std::filesystem::create_directories(folder_ / "lost" / "empty");
  const SessionSnapshot start(host_, {folder_});
  const SessionState before = Now();
  Session& session = host_.session;
  session.ActivateWindow(session.ShowInWindow(*drawing_).id);
  session.selection_buffer.push_back(
      {.type = 3, .id = 7, .owner = drawing_, .root = drawing_, .path = {}});
  session.ChangeDirectory(folder_ / "text");
  session.Add(Model({"new", ModelKind::kPart}));
  drawing_->As<DrawingContent>()->views[0].shows->model = nullptr;
  host_.options["pro_format_dir"] = {"E:"};
  WriteFile("last.ini", "[last]\r\nmodel=\r\n");
  WriteFile("new.txt", "new");
  WriteFile("DWG/2000/a.dwg", "drawn");
  std::filesystem::remove_all(folder_ / "lost");
  const Lines changed = Differences(before, Now());
  for (const std::string name :
       {"folder DWG", "folder DWG\\2000", "folder lost\\empty", "window of box.drw",
        "current window", "active window", "box.drw link 3", "selection", "working directory",
        "new.prt modified", "option pro_format_dir", "last.ini [last] model", "file new.txt"}) {
    EXPECT_TRUE(std::ranges::count(changed, name)) << name;
  }
  start.Restore(host_);
  EXPECT_EQ(NotPutBack(before, Now()), Lines());
}

TEST_F(SessionStates, WhatIsRegisteredIsComparedWholeAndFoldersAreToldApart) {
  host_.commands.commands.emplace_back().name = "QmBom";
  host_.commands.FindMenu("Help")->buttons.emplace_back().name = "QmBom";
  WriteFile("desk/a.txt", "first");
  WriteFile("a.txt", "first");
  const auto now = [&] { return StateNow(host_, {folder_, folder_ / "desk"}); };
  const SessionState before = now();
  host_.commands.commands.back().icon = "Bom.png";
  host_.commands.FindMenu("Help")->buttons.back().label_key = "Bom";
  WriteFile("a.txt", "second");
  EXPECT_EQ(Differences(before, now()), (Lines{"command QmBom", "file a.txt", "menu Help"}));
}

TEST_F(SessionStates, WhatIsNotPutBackIsNamed) {
  const SessionState before = Now();
  drawing_->modified = !drawing_->modified;
  EXPECT_EQ(NotPutBack(before, Now()),
            Lines{"workbench: the sweep does not put back box.drw modified"});
}

}  // namespace
}  // namespace wb
