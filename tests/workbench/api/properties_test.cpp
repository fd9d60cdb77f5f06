// Parameters and appearances: what the host holds against a careless caller.
#include <algorithm>
#include <cstring>

#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, ParametersKeepTheirTypeAndTheirName) {
  ProModelitem owner = LidItem();
  ProModelitem feature = Item(PRO_FEATURE, 7, box_->handle);
  ProName fresh = L"NEW";
  ProName taken = L"mass";
  ProName relation = L"A+B";
  ProParameter made{};
  ProParameter mass = LidParameter(L"MASS");
  ProParamvalue three = Value(PRO_PARAM_INTEGER, 3);
  ProParamvalue neither = Value(PRO_PARAM_BOOLEAN, 7);
  ProParamvalue note = Value(PRO_PARAM_NOTE_ID);
  Check({
      {"created", [&] { return ProParameterCreate(&owner, fresh, &three, &made); },
       PRO_TK_NO_ERROR},
      {"without case", [&] { return ProParameterCreate(&owner, taken, &three, &made); },
       PRO_TK_E_FOUND},
      {"a relation", [&] { return ProParameterCreate(&owner, relation, &three, &made); },
       PRO_TK_INVALID_NAME},
      {"neither yes nor no", [&] { return ProParameterCreate(&owner, taken, &neither, &made); },
       PRO_TK_BAD_INPUTS, "ProParameterCreate: yes/no value not 0 or 1"},
      {"a note", [&] { return ProParameterCreate(&owner, taken, &note, &made); }, PRO_TK_BAD_INPUTS,
       "ProParameterCreate: value type 54"},
      {"of a feature", [&] { return ProParameterInit(&feature, taken, &made); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProParameterInit: parameters of items inside a model"},
      {"of another type", [&] { return ProParameterValueSet(&mass, &three); }, PRO_TK_INVALID_TYPE},
  });
  EXPECT_EQ(std::get<double>(lid_->FindParameter("MASS")->value), 1.5);
}

// A plug-in whose record has no reserve has something of its own there.
TEST_F(HostContract, NothingIsWrittenBehindTheRecordOfAParameter) {
  constexpr unsigned char kOwn = 0xCC;
  constexpr size_t kRecord = 96;
  ProModelitem owner = LidItem();
  ProName mass = L"MASS";
  ProName fresh = L"NEW";
  ProParamvalue three = Value(PRO_PARAM_INTEGER, 3);
  unsigned char bytes[sizeof(ProParameter)];
  auto* const place = reinterpret_cast<ProParameter*>(bytes);
  const auto is_own_kept = [&] {
    return std::all_of(bytes + kRecord, std::end(bytes), [](auto byte) { return byte == kOwn; });
  };
  std::memset(bytes, kOwn, sizeof(bytes));
  EXPECT_EQ(ProParameterInit(&owner, mass, place), PRO_TK_NO_ERROR);
  EXPECT_TRUE(is_own_kept());
  EXPECT_EQ(ProParameterCreate(&owner, fresh, &three, place), PRO_TK_NO_ERROR);
  EXPECT_TRUE(is_own_kept());
  host_.faults.Order({.function = "", .nth = 1, .kind = FaultKind::kEmptySuccess});
  EXPECT_EQ(ProParameterInit(&owner, mass, place), PRO_TK_NO_ERROR);
  EXPECT_TRUE(is_own_kept());
  host_.faults.Clear();
  host_.habits.parameter_record_has_unknown_order = true;
  EXPECT_EQ(ProParameterInit(&owner, mass, place), PRO_TK_NO_ERROR);
  EXPECT_FALSE(is_own_kept());
}

TEST_F(HostContract, AppearancesAreReadAndWrittenWhole) {
  lid_->solid().surfaces.Add({1, {{0, 0, 0}, {1, 1, 1}}});
  lid_->solid().appearance.emplace().name = "steel";
  lid_->solid().appearance->finish = 12;
  ProModelitem lid = LidItem();
  ProModelitem face = Item(PRO_SURFACE, 1, lid_->handle);
  ProModelitem no_face = Item(PRO_SURFACE, 2, lid_->handle);
  ProModelitem feature = Item(PRO_FEATURE, 7, box_->handle);
  ProSurfaceAppearanceProps record = {};
  ProSurfaceAppearanceProps wrong = {};
  wrong.transparency = 1.5;
  Check({
      {"a part's", [&] { return ProSurfaceAppearancepropsGet(&lid, &record); }, PRO_TK_NO_ERROR},
      {"a part's, with a byte lost",
       [&] {
         ProSurfaceAppearanceProps lost = record;
         lost.reserve[100] = 0;
         return ProSurfaceAppearancepropsSet(&face, &lost);
       },
       PRO_TK_BAD_INPUTS,
       "ProSurfaceAppearancepropsSet: an appearance of which only a part is written back"},
      {"no such surface", [&] { return ProSurfaceAppearancepropsGet(&no_face, &record); },
       PRO_TK_BAD_INPUTS, "ProSurfaceAppearancepropsGet: lid.prt has no surface 2"},
      {"too clear", [&] { return ProSurfaceAppearancepropsSet(&lid, &wrong); }, PRO_TK_BAD_INPUTS,
       "ProSurfaceAppearancepropsSet: a number of an appearance is not from 0 to 1"},
      {"a feature's", [&] { return ProSurfaceAppearancepropsGet(&feature, &record); },
       PRO_TK_NOT_IMPLEMENTED, "",
       "ProSurfaceAppearancepropsGet: the appearance of an item of type 3"},
  });
}

}  // namespace
}  // namespace wb
