// Family tables, simplified representations and backups: what the host answers, and
// what it holds against a careless caller.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, CellsOfInstancesLieInTheGenericsTable) {
  lid_->solid().family_instances.Add({"lid_m8", {}});
  ProFamtable table = {};
  ProFamtableItem column = {};
  ProFamtableItem unfilled = {};
  ProFaminstance row = {};
  ProName name = L"LID_M8";
  ProParameter count = LidParameter(L"COUNT");
  ProParamvalue value = Value(PRO_PARAM_INTEGER, 5);
  ProParamvalue yes = Value(PRO_PARAM_BOOLEAN, 1);
  Check({
      {"the table", [&] { return ProFamtableInit(lid_->handle, &table); }, PRO_TK_NO_ERROR},
      {"the column", [&] { return ProParameterToFamtableItem(&count, &column); }, PRO_TK_NO_ERROR},
      {"the row", [&] { return ProFaminstanceInit(name, &table, &row); }, PRO_TK_NO_ERROR},
      {"added", [&] { return ProFamtableItemAdd(&table, &column); }, PRO_TK_NO_ERROR},
      {"added again", [&] { return ProFamtableItemAdd(&table, &column); }, PRO_TK_E_FOUND},
      {"another type", [&] { return ProFaminstanceValueSet(&row, &column, &yes); },
       PRO_TK_INVALID_TYPE},
      {"its own", [&] { return ProFaminstanceValueSet(&row, &column, &value); }, PRO_TK_NO_ERROR},
      {"a record of zeroes", [&] { return ProFamtableItemAdd(&table, &unfilled); },
       PRO_TK_BAD_INPUTS, "ProFamtableItemAdd: column that no call has filled"},
  });
  const FamilyInstance* const held = lid_->solid().family_instances.Find("lid_m8");
  ASSERT_NE(held->cells.Find("count"), nullptr);
  EXPECT_EQ(held->cells.Find("count")->value, ParameterValue(5));
}

TEST_F(HostContract, RepresentationsAreMadeOfDataThatStaysTheCallers) {
  ProName name = L"REP";
  ProName other = L"OTHER";
  ProSimprepdata* data = nullptr;
  ProSimprepdata* twice = nullptr;
  ProSimprepAction action = {};
  ProSimprepAction unfilled = {};
  ProSimprepitem item = {};
  ProSimprep rep = {};
  ProSimprep found = {};
  ProIdTable path = {};
  const auto alloc = [&](ProName of, ProSimprepdata** place) {
    return ProSimprepdataAlloc(of, PRO_B_FALSE, PRO_SIMPREP_INCLUDE, place);
  };
  Check({
      {"data", [&] { return alloc(name, &data); }, PRO_TK_NO_ERROR},
      {"an action", [&] { return ProSimprepActionInit(PRO_SIMPREP_EXCLUDE, nullptr, &action); },
       PRO_TK_NO_ERROR},
      {"an unknown one",
       [&] {
         return ProSimprepActionInit(static_cast<ProSimprepActionType>(7), nullptr, &unfilled);
       },
       PRO_TK_NOT_IMPLEMENTED, "",
       "ProSimprepActionInit: what a representation does with a component by the number 7"},
      {"an item", [&] { return ProSimprepdataitemInit(path, 0, 7, &action, &item); },
       PRO_TK_NO_ERROR},
      {"of no action", [&] { return ProSimprepdataitemInit(path, 0, 7, &unfilled, &item); },
       PRO_TK_BAD_INPUTS, "ProSimprepdataitemInit: action that no call has filled"},
      {"added", [&] { return ProSimprepdataitemAdd(data, PRO_SIMPREP_COMPONENT_ITEM, &item); },
       PRO_TK_NO_ERROR},
      {"made", [&] { return ProSimprepCreate(box_->handle, data, &rep); }, PRO_TK_NO_ERROR},
      {"found", [&] { return ProSimprepInit(name, -1, box_->handle, &found); }, PRO_TK_NO_ERROR},
      {"elsewhere", [&] { return ProSimprepActivate(lid_->handle, &found); }, PRO_TK_BAD_INPUTS,
       "ProSimprepActivate: a representation of another model"},
      {"data with an item twice", [&] { return alloc(other, &twice); }, PRO_TK_NO_ERROR},
      {"once", [&] { return ProSimprepdataitemAdd(twice, PRO_SIMPREP_COMPONENT_ITEM, &item); },
       PRO_TK_NO_ERROR},
      {"twice", [&] { return ProSimprepdataitemAdd(twice, PRO_SIMPREP_COMPONENT_ITEM, &item); },
       PRO_TK_NO_ERROR},
      {"not made", [&] { return ProSimprepCreate(box_->handle, twice, &rep); }, PRO_TK_BAD_INPUTS,
       "ProSimprepCreate: two items for the component 7"},
      {"freed as well", [&] { return ProSimprepdataFree(&twice); }, PRO_TK_NO_ERROR},
      {"freed", [&] { return ProSimprepdataFree(&data); }, PRO_TK_NO_ERROR},
  });
  EXPECT_EQ(data, nullptr);
}

TEST_F(HostContract, ABackupTakesTheRecordOfItsModel) {
  ProMdldata lid = {};
  ProMdldata none = {};
  ASSERT_EQ(ProMdlDataGet(lid_->handle, &lid), PRO_TK_NO_ERROR);
  Check({
      {"another model's", [&] { return ProMdlBackup(box_->handle, &lid); }, PRO_TK_BAD_INPUTS,
       "ProMdlBackup: the record is that of another model"},
      {"zeroes", [&] { return ProMdlBackup(lid_->handle, &none); }, PRO_TK_BAD_INPUTS,
       "ProMdlBackup: the record is that of another model"},
  });
}

}  // namespace
}  // namespace wb
