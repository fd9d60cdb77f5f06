// Features are looked up in their owners, and visited one by one.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, FeaturesAreLookedUpInTheirOwners) {
  ProModelitem missing = Item(PRO_FEATURE, 8, box_->handle);
  ProModelitem datum = Item(PRO_FEATURE, 9, box_->handle);
  ProModelitem unknown = Item(PRO_FEATURE, 10, box_->handle);
  ProModelitem part = LidItem();
  ProModelitem in_drawing = Item(PRO_FEATURE, 1, drawing_->handle);
  ProFeatStatus status{};
  ProBoolean hidden{};
  ProMdl model = nullptr;
  Check({
      {"a missing one", [&] { return ProAsmcompMdlGet(&missing, &model); }, PRO_TK_E_NOT_FOUND},
      {"no component", [&] { return ProAsmcompMdlGet(&datum, &model); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompMdlGet: feature 9 is no component"},
      {"unknown", [&] { return ProFeatureStatusGet(&unknown, &status); }, PRO_TK_BAD_INPUTS,
       "ProFeatureStatusGet: \"box.asm\" has no feature 10"},
      {"no feature", [&] { return ProFeatureStatusGet(&part, &status); }, PRO_TK_BAD_INPUTS,
       "ProFeatureStatusGet: item of type 2 given as a feature"},
      {"of a drawing", [&] { return ProFeatureStatusGet(&in_drawing, &status); }, PRO_TK_BAD_INPUTS,
       "ProFeatureStatusGet: a drawing given where a solid is needed"},
      {"a hidden part", [&] { return ProModelitemIsHidden(&part, &hidden); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProModelitemIsHidden: hide state of an item of type 2"},
  });
}

ProError Stop(ProFeature*, ProError, ProAppData) {
  return PRO_TK_USER_ABORT;
}
ProError GoOn(ProFeature*, ProError, ProAppData data) {
  ++*static_cast<int*>(data);
  return PRO_TK_NO_ERROR;
}
ProError PassAll(ProFeature*, ProAppData) {
  return PRO_TK_CONTINUE;
}

TEST_F(HostContract, AVisitAnswersWhatItsActionSaid) {
  int visited = 0;
  Check({
      {"all", [&] { return ProSolidFeatVisit(box_->handle, &GoOn, nullptr, &visited); },
       PRO_TK_NO_ERROR},
      {"stopped", [&] { return ProSolidFeatVisit(box_->handle, &Stop, nullptr, nullptr); },
       PRO_TK_USER_ABORT},
      {"all passed over", [&] { return ProSolidFeatVisit(box_->handle, &Stop, &PassAll, nullptr); },
       PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(visited, 3);
}

}  // namespace
}  // namespace wb
