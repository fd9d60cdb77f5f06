// What the host lends or names: arrays, selections, paths through assemblies, features.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, ArraysAreCheckedAtEveryUse) {
  ProArray numbers = nullptr;
  ProArray foreign = &numbers;
  int object = 4;
  Check({
      {"made", [&] { return ProArrayAlloc(0, sizeof(int), 1, &numbers); }, PRO_TK_NO_ERROR},
      {"beyond the end", [&] { return ProArrayObjectAdd(&numbers, 1, 1, &object); },
       PRO_TK_BAD_INPUTS, "ProArrayObjectAdd: index 1 outside the array"},
      {"of no size", [&] { return ProArrayAlloc(0, 0, 1, &foreign); }, PRO_TK_BAD_INPUTS,
       "ProArrayAlloc: sizes must be positive"},
  });
  EXPECT_EQ(ProArrayFree(&numbers), PRO_TK_NO_ERROR);
  EXPECT_EQ(numbers, nullptr);
}

TEST_F(HostContract, SelectionsAreTheCallersUntilFreed) {
  host_.session.selection_buffer.push_back({PRO_FEATURE, 7, box_, box_, {}});
  host_.session.selection_buffer.push_back({PRO_FEATURE, 8, nullptr, nullptr, {}});
  ProSelection* picked = nullptr;
  ProModelitem item{};
  ProAsmcomppath path{};
  ASSERT_EQ(ProSelbufferSelectionsGet(&picked), PRO_TK_NO_ERROR);
  const ProSelection first = picked[0];
  const ProSelection second = picked[1];
  Check({
      {"an item", [&] { return ProSelectionModelitemGet(first, &item); }, PRO_TK_NO_ERROR},
      {"of nothing", [&] { return ProSelectionModelitemGet(second, &item); }, PRO_TK_INVALID_ITEM},
      {"a way to nothing", [&] { return ProSelectionAsmcomppathGet(second, &path); },
       PRO_TK_INVALID_ITEM},
      {"freed", [&] { return ProSelectionarrayFree(picked); }, PRO_TK_NO_ERROR},
      {"after that", [&] { return ProSelectionModelitemGet(first, &item); }, PRO_TK_BAD_INPUTS,
       "ProSelectionModelitemGet: stale selection handle (its object is gone)"},
      {"again", [&] { return ProSelectionarrayFree(picked); }, PRO_TK_BAD_INPUTS,
       "ProSelectionarrayFree: array used after it was freed"},
      {"cleared", [&] { return ProSelbufferClear(); }, PRO_TK_NO_ERROR},
      {"empty", [&] { return ProSelbufferSelectionsGet(&picked); }, PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(item.id, 7);
}

TEST_F(HostContract, PathsLeadThroughComponents) {
  int ids[] = {7};
  ProAsmcomppath to_datum{};
  ProAsmcomppath to_missing{};
  ProMdl model = nullptr;
  const auto init = [&](ProAsmcomppath* place, int id) {
    ids[0] = id;
    return ProAsmcomppathInit(box_->handle, ids, 1, place);
  };
  Check({
      {"to a datum", [&] { return init(&to_datum, 9); }, PRO_TK_NO_ERROR},
      {"no part", [&] { return ProAsmcomppathMdlGet(&to_datum, &model); }, PRO_TK_BAD_INPUTS,
       "ProAsmcomppathMdlGet: \"box.asm\" has no component 9"},
      {"to a missing part", [&] { return init(&to_missing, 8); }, PRO_TK_NO_ERROR},
      {"missing", [&] { return ProAsmcomppathMdlGet(&to_missing, &model); }, PRO_TK_E_NOT_FOUND},
      {"too deep", [&] { return ProAsmcomppathInit(box_->handle, ids, 26, &to_missing); },
       PRO_TK_BAD_INPUTS, "ProAsmcomppathInit: path of 26 levels"},
  });
}

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
ProError PassAll(ProFeature*, ProAppData) {
  return PRO_TK_CONTINUE;
}

TEST_F(HostContract, AVisitAnswersWhatItsActionSaid) {
  Check({
      {"stopped", [&] { return ProSolidFeatVisit(box_->handle, &Stop, nullptr, nullptr); },
       PRO_TK_USER_ABORT},
      {"all passed over", [&] { return ProSolidFeatVisit(box_->handle, &Stop, &PassAll, nullptr); },
       PRO_TK_E_NOT_FOUND},
  });
}

}  // namespace
}  // namespace wb
