// Windows and what they show.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, WindowsShowWhatIsDisplayed) {
  ProMdl current = nullptr;
  int window = 0;
  ProName name = L"lid";
  Check({
      {"none yet", [&] { return ProWindowCurrentGet(&window); }, PRO_TK_E_NOT_FOUND},
      {"unknown", [&] { return ProWindowActivate(9); }, PRO_TK_BAD_INPUTS,
       "ProWindowActivate: there is no window 9"},
      {"displayed", [&] { return ProMdlDisplay(box_->handle); }, PRO_TK_NO_ERROR},
      {"in the same window", [&] { return ProMdlDisplay(lid_->handle); }, PRO_TK_NO_ERROR},
      {"current", [&] { return ProMdlCurrentGet(&current); }, PRO_TK_NO_ERROR},
      {"of no assembly", [&] { return ProObjectwindowCreate(name, PRO_ASSEMBLY, &window); },
       PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(current, lid_->handle);
  EXPECT_EQ(host_.session.windows().size(), 1u);
}

TEST_F(HostContract, WindowsCloseAsTheUserClosesThem) {
  Session& session = host_.session;
  session.ActivateWindow(session.ShowInWindow(*box_).id);
  const int second = session.ShowInWindow(*lid_).id;
  const int third = session.ShowInWindow(*drawing_).id;
  session.SetCurrentWindow(second);
  Check({
      {"the base one", [&] { return ProWindowDelete(kBaseWindow); }, PRO_TK_BAD_CONTEXT},
      {"the current one", [&] { return ProWindowDelete(second); }, PRO_TK_BAD_CONTEXT},
      {"another one", [&] { return ProWindowDelete(third); }, PRO_TK_NO_ERROR},
      {"once more", [&] { return ProWindowDelete(third); }, PRO_TK_BAD_INPUTS,
       "ProWindowDelete: there is no window 2"},
      {"the current one closed", [&] { return ProWindowCurrentClose(); }, PRO_TK_NO_ERROR},
  });
  EXPECT_EQ(session.Current(), box_);
  EXPECT_EQ(ProWindowCurrentClose(), PRO_TK_NO_ERROR);
  EXPECT_EQ(session.Current(), nullptr);
  EXPECT_EQ(ProWindowCurrentClose(), PRO_TK_BAD_CONTEXT);
}

TEST_F(HostContract, ErasingWhatIsNotDisplayedEndsTheOtherHandles) {
  Model& other = host_.session.Add(Model({"other", ModelKind::kPart}));
  const ProMdl other_handle = other.handle;
  host_.session.ShowInWindow(*box_);
  EXPECT_EQ(ProMdlEraseNotDisplayed(), PRO_TK_NO_ERROR);
  ProName name;
  EXPECT_EQ(ProMdlNameGet(lid_->handle, name), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMdlNameGet(other_handle, name), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(),
            Lines{"plug-in misused ProMdlNameGet: stale model handle (its object is gone)"});
}

}  // namespace
}  // namespace wb
