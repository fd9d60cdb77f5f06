// Appearances, relations, units and materials: what the host answers, and what it holds against a
// careless caller.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

ProError KeepSurface(ProSurface surface, ProError, ProAppData data) {
  *static_cast<ProSurface*>(data) = surface;
  return PRO_TK_NO_ERROR;
}

TEST_F(HostContract, AppearancesAreReadAndWrittenWhole) {
  lid_->solid().surfaces.Add({1, {{0, 0, 0}, {1, 1, 1}}});
  lid_->solid().appearance.emplace().name = "steel";
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

TEST_F(HostContract, RelationsTakeAnArrayAndItsCount) {
  ProModelitem lid = LidItem();
  ProRelset set = {};
  ProRelset unfilled = {};
  wchar_t line[] = L"a=1";
  wchar_t** one = nullptr;
  wchar_t* bare[] = {line};
  wchar_t** lines = nullptr;
  ProArrayAlloc(1, sizeof(wchar_t*), 1, reinterpret_cast<ProArray*>(&one));
  Check({
      {"made", [&] { return ProRelsetCreate(&lid, &set); }, PRO_TK_NO_ERROR},
      {"too many", [&] { return ProRelsetRelationsSet(&set, one, 2); }, PRO_TK_BAD_INPUTS,
       "ProRelsetRelationsSet: count 2 for an array of 1"},
      {"no array", [&] { return ProRelsetRelationsSet(&set, bare, 1); }, PRO_TK_BAD_INPUTS,
       "ProRelsetRelationsSet: foreign pointer as array"},
      {"no set", [&] { return ProRelsetRelationsGet(&unfilled, &lines); }, PRO_TK_BAD_INPUTS,
       "ProRelsetRelationsGet: a relation set that the host has not filled in"},
  });
}

TEST_F(HostContract, UnitsAndMaterialsBelongToTheirModel) {
  ProName name = L"none_such";
  ProUnitsystem system = {};
  Check({
      {"in force", [&] { return ProMdlPrincipalunitsystemGet(lid_->handle, &system); },
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
      {"an assembly's", [&] { return ProMaterialfileRead(box_->handle, name); }, PRO_TK_BAD_INPUTS,
       "ProMaterialfileRead: not a part"},
      {"with options", [&] { return ProSolidRegenerate(lid_->handle, 1); }, PRO_TK_NOT_IMPLEMENTED,
       "", "ProSolidRegenerate: regeneration with options"},
  });
}

TEST_F(HostContract, SurfacesAreItemsOfTheirOwnModelAndHaveExtremes) {
  lid_->solid().surfaces.Add({4, {{-1, -2, -3}, {10, 20, 30}}});
  ProSurface surface = nullptr;
  ProSolidSurfaceVisit(lid_->handle, &KeepSurface, nullptr, &surface);
  ProGeomitem item = {};
  ProVector nowhere = {};
  Pro3dPnt extreme = {};
  Check({
      {"of another model", [&] { return ProSurfaceToGeomitem(box_->handle, surface, &item); },
       PRO_TK_BAD_INPUTS, "ProSurfaceToGeomitem: the surface is not one of box.asm"},
      {"towards nothing", [&] { return ProSurfaceExtremesEval(surface, nowhere, extreme); },
       PRO_TK_BAD_INPUTS, "ProSurfaceExtremesEval: a direction without a length"},
  });
}

}  // namespace
}  // namespace wb
