// Appearances, relations, units and materials: what the host answers, and what it holds against a
// careless caller.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

ProError KeepSurface(ProSurface surface, ProError, ProAppData data) {
  *static_cast<ProSurface*>(data) = surface;
  return PRO_TK_NO_ERROR;
}

// An array of texts of the caller's own.
wchar_t** TextsOf(std::vector<wchar_t*> texts) {
  ProArray array = nullptr;
  ProArrayAlloc(0, sizeof(wchar_t*), 1, &array);
  if (!texts.empty()) {
    ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, static_cast<int>(texts.size()), texts.data());
  }
  return static_cast<wchar_t**>(array);
}

TEST_F(HostContract, AppearancesAreReadAndWrittenWhole) {
  lid_->solid().surfaces.Add({1, {{0, 0, 0}, {1, 1, 1}}});
  lid_->solid().appearance.emplace().name = "steel";
  lid_->solid().appearance->finish = 12;
  ProModelitem lid = LidItem();
  ProModelitem face = Item(PRO_SURFACE, 1, lid_->handle);
  ProModelitem no_face = Item(PRO_SURFACE, 2, lid_->handle);
  ProModelitem feature = Item(PRO_FEATURE, 7, box_->handle);
  ProModelitem sheet = Item(PRO_DRAWING, 0, drawing_->handle);
  ProSurfaceAppearanceProps record = {};
  ProSurfaceAppearanceProps wrong = {};
  wrong.transparency = 1.5;
  Check({
      {"a part's", [&] { return ProSurfaceAppearancepropsGet(&lid, &record); }, PRO_TK_NO_ERROR},
      {"a part's, with a text lost",
       [&] {
         ProSurfaceAppearanceProps lost = record;
         lost.label = nullptr;
         return ProSurfaceAppearancepropsSet(&face, &lost);
       },
       PRO_TK_BAD_INPUTS,
       "ProSurfaceAppearancepropsSet: an appearance of which only a part is written back"},
      {"a part's, with a byte lost",
       [&] {
         ProSurfaceAppearanceProps lost = record;
         lost.reserve[100] = 0;
         return ProSurfaceAppearancepropsSet(&face, &lost);
       },
       PRO_TK_BAD_INPUTS,
       "ProSurfaceAppearancepropsSet: an appearance of which only a part is written back"},
      {"a surface's", [&] { return ProSurfaceAppearancepropsSet(&face, &record); },
       PRO_TK_NO_ERROR},
      {"taken away", [&] { return ProSurfaceAppearancepropsSet(&lid, nullptr); }, PRO_TK_NO_ERROR},
      {"no such surface", [&] { return ProSurfaceAppearancepropsGet(&no_face, &record); },
       PRO_TK_BAD_INPUTS, "ProSurfaceAppearancepropsGet: lid.prt has no surface 2"},
      {"too clear", [&] { return ProSurfaceAppearancepropsSet(&lid, &wrong); }, PRO_TK_BAD_INPUTS,
       "ProSurfaceAppearancepropsSet: a number of an appearance is not from 0 to 1"},
      {"a drawing's", [&] { return ProSurfaceAppearancepropsGet(&sheet, &record); },
       PRO_TK_BAD_INPUTS, "ProSurfaceAppearancepropsGet: a drawing given where a solid is needed"},
      {"a feature's", [&] { return ProSurfaceAppearancepropsGet(&feature, &record); },
       PRO_TK_NOT_IMPLEMENTED, "",
       "ProSurfaceAppearancepropsGet: the appearance of an item of type 3"},
  });
  EXPECT_FALSE(lid_->solid().appearance);
  ASSERT_TRUE(lid_->solid().surfaces[0].appearance);
  EXPECT_EQ(lid_->solid().surfaces[0].appearance->name, "steel");
  EXPECT_EQ(lid_->solid().surfaces[0].appearance->finish, 12);
}

TEST_F(HostContract, RelationsTakeAnArrayAndItsCount) {
  ProModelitem lid = LidItem();
  ProRelset set = {};
  ProRelset unfilled = {};
  wchar_t line[] = L"a=1";
  wchar_t broken[] = L"(a=1";
  wchar_t** one = TextsOf({line});
  wchar_t** bad = TextsOf({broken});
  wchar_t* bare[] = {line};
  wchar_t** lines = nullptr;
  Check({
      {"none yet", [&] { return ProModelitemToRelset(&lid, &set); }, PRO_TK_E_NOT_FOUND},
      {"made", [&] { return ProRelsetCreate(&lid, &set); }, PRO_TK_NO_ERROR},
      {"made again", [&] { return ProRelsetCreate(&lid, &set); }, PRO_TK_E_FOUND},
      {"no lines", [&] { return ProRelsetRelationsGet(&set, &lines); }, PRO_TK_E_NOT_FOUND},
      {"set", [&] { return ProRelsetRelationsSet(&set, one, 1); }, PRO_TK_NO_ERROR},
      {"read", [&] { return ProRelsetRelationsGet(&set, &lines); }, PRO_TK_NO_ERROR},
      {"refused", [&] { return ProRelsetRelationsSet(&set, bad, 1); }, PRO_TK_GENERAL_ERROR},
      {"too many", [&] { return ProRelsetRelationsSet(&set, one, 2); }, PRO_TK_BAD_INPUTS,
       "ProRelsetRelationsSet: count 2 for an array of 1"},
      {"no array", [&] { return ProRelsetRelationsSet(&set, bare, 1); }, PRO_TK_BAD_INPUTS,
       "ProRelsetRelationsSet: foreign pointer as array"},
      {"no set", [&] { return ProRelsetRelationsGet(&unfilled, &lines); }, PRO_TK_BAD_INPUTS,
       "ProRelsetRelationsGet: a relation set that the host has not filled in"},
      {"after a regeneration",
       [&] { return ProRelsetPostregenerationInit(lid_->handle, &unfilled); }, PRO_TK_E_NOT_FOUND},
  });
  EXPECT_EQ(lid_->solid().relations, RelationLines{"a=1"});
  EXPECT_EQ(ProWstringproarrayFree(lines), PRO_TK_NO_ERROR);
}

TEST_F(HostContract, UnitsBelongToTheirModel) {
  ProName millimetre = L"mm";
  ProName furlong = L"furlong";
  ProUnititem unit = {};
  ProUnitsystem system = {};
  Check({
      {"a unit", [&] { return ProUnitInit(lid_->handle, millimetre, &unit); }, PRO_TK_NO_ERROR},
      {"none such", [&] { return ProUnitInit(lid_->handle, furlong, &unit); }, PRO_TK_E_NOT_FOUND},
      {"in force", [&] { return ProMdlPrincipalunitsystemGet(lid_->handle, &system); },
       PRO_TK_NO_ERROR},
      {"set",
       [&] {
         return ProMdlPrincipalunitsystemSet(lid_->handle, &system, PRO_UNITCONVERT_SAME_SIZE,
                                             PRO_B_TRUE, -1);
       },
       PRO_TK_NO_ERROR},
      {"another model's",
       [&] {
         return ProMdlPrincipalunitsystemSet(box_->handle, &system, PRO_UNITCONVERT_SAME_SIZE,
                                             PRO_B_TRUE, -1);
       },
       PRO_TK_BAD_INPUTS, "ProMdlPrincipalunitsystemSet: a unit system of another model"},
      {"other flags",
       [&] {
         return ProMdlPrincipalunitsystemSet(lid_->handle, &system, PRO_UNITCONVERT_SAME_SIZE,
                                             PRO_B_TRUE, 0);
       },
       PRO_TK_NOT_IMPLEMENTED, "",
       "ProMdlPrincipalunitsystemSet: units with flags other than 1 and -1"},
  });
}

TEST_F(HostContract, MaterialsAndBendTablesWantTheirParts) {
  ProName name = L"none_such";
  ProMaterial material = {L"none_such", lid_->handle};
  Check({
      {"no file", [&] { return ProMaterialfileRead(lid_->handle, name); }, PRO_TK_E_NOT_FOUND},
      {"not read", [&] { return ProMaterialCurrentSet(&material); }, PRO_TK_E_NOT_FOUND},
      {"an assembly's", [&] { return ProMaterialfileRead(box_->handle, name); }, PRO_TK_BAD_INPUTS,
       "ProMaterialfileRead: not a part"},
      {"no sheet metal", [&] { return ProSmtPartBendtableApply(lid_->handle, name, PRO_B_TRUE); },
       PRO_TK_INVALID_TYPE},
      {"with options", [&] { return ProSolidRegenerate(lid_->handle, 1); }, PRO_TK_NOT_IMPLEMENTED,
       "", "ProSolidRegenerate: regeneration with options"},
  });
}

TEST_F(HostContract, SurfacesAreItemsOfTheirOwnModelAndHaveExtremes) {
  lid_->solid().surfaces.Add({4, {{-1, -2, -3}, {10, 20, 30}}});
  ProSurface surface = nullptr;
  ProSolidSurfaceVisit(lid_->handle, &KeepSurface, nullptr, &surface);
  ProGeomitem item = {};
  ProVector direction = {-1, 1, 0};
  ProVector nowhere = {};
  Pro3dPnt extreme = {};
  Check({
      {"an item", [&] { return ProSurfaceToGeomitem(lid_->handle, surface, &item); },
       PRO_TK_NO_ERROR},
      {"of another model", [&] { return ProSurfaceToGeomitem(box_->handle, surface, &item); },
       PRO_TK_BAD_INPUTS, "ProSurfaceToGeomitem: the surface is not one of box.asm"},
      {"furthest", [&] { return ProSurfaceExtremesEval(surface, direction, extreme); },
       PRO_TK_NO_ERROR},
      {"towards nothing", [&] { return ProSurfaceExtremesEval(surface, nowhere, extreme); },
       PRO_TK_BAD_INPUTS, "ProSurfaceExtremesEval: a direction without a length"},
  });
  EXPECT_EQ(item.type, PRO_SURFACE);
  EXPECT_EQ(item.id, 4);
  EXPECT_EQ(extreme[0], -1);
  EXPECT_EQ(extreme[1], 20);
}

}  // namespace
}  // namespace wb
