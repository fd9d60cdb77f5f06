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
      {"repainted", [&] { return ProWindowRepaint(9); }, PRO_TK_BAD_INPUTS,
       "ProWindowRepaint: there is no window 9"},
      {"displayed", [&] { return ProMdlDisplay(box_->handle); }, PRO_TK_NO_ERROR},
      {"in the same window", [&] { return ProMdlDisplay(lid_->handle); }, PRO_TK_NO_ERROR},
      {"current", [&] { return ProMdlCurrentGet(&current); }, PRO_TK_NO_ERROR},
      {"its window", [&] { return ProObjectwindowCreate(name, PRO_PART, &window); },
       PRO_TK_NO_ERROR},
      {"of no assembly", [&] { return ProObjectwindowCreate(name, PRO_ASSEMBLY, &window); },
       PRO_TK_E_NOT_FOUND},
      {"erased", [&] { return ProMdlDisplay(stale_); }, PRO_TK_BAD_INPUTS,
       "ProMdlDisplay: stale model handle (its object is gone)"},
  });
  EXPECT_EQ(current, lid_->handle);
  EXPECT_EQ(host_.session.windows().size(), 1u);
}

}  // namespace
}  // namespace wb
