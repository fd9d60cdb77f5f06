// Family tables, simplified representations, constraints and backups: what the host answers, and
// what it holds against a careless caller.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, CellsOfInstancesLieInTheGenericsTable) {
  Model instance({"lid_m8", ModelKind::kPart});
  instance.solid().generic = ModelLink{lid_->id, lid_};
  lid_->solid().family_instances.Add({"lid_m8", {}});
  Model& made = host_.session.Add(std::move(instance));
  ProMdl generic = nullptr;
  ProFamtable table = {};
  ProFamtableItem column = {};
  ProFamtableItem unfilled = {};
  ProFaminstance row = {};
  ProFaminstance no_row = {};
  ProName name = L"LID_M8";
  ProName other = L"lid_m10";
  ProParameter count = LidParameter(L"COUNT");
  ProParamvalue value = Value(PRO_PARAM_INTEGER, 5);
  ProParamvalue yes = Value(PRO_PARAM_BOOLEAN, 1);
  ProParamvalue got = {};
  Check({
      {"an instance", [&] { return ProFaminstanceGenericGet(made.handle, PRO_B_TRUE, &generic); },
       PRO_TK_NO_ERROR},
      {"none", [&] { return ProFaminstanceGenericGet(lid_->handle, PRO_B_TRUE, &generic); },
       PRO_TK_E_NOT_FOUND},
      {"the table", [&] { return ProFamtableInit(lid_->handle, &table); }, PRO_TK_NO_ERROR},
      {"the column", [&] { return ProParameterToFamtableItem(&count, &column); }, PRO_TK_NO_ERROR},
      {"the row", [&] { return ProFaminstanceInit(name, &table, &row); }, PRO_TK_NO_ERROR},
      {"no row", [&] { return ProFaminstanceInit(other, &table, &no_row); }, PRO_TK_NO_ERROR},
      {"no column yet", [&] { return ProFaminstanceValueGet(&row, &column, &got); },
       PRO_TK_E_NOT_FOUND},
      {"set without it", [&] { return ProFaminstanceValueSet(&row, &column, &value); },
       PRO_TK_E_NOT_FOUND},
      {"added", [&] { return ProFamtableItemAdd(&table, &column); }, PRO_TK_NO_ERROR},
      {"added again", [&] { return ProFamtableItemAdd(&table, &column); }, PRO_TK_E_FOUND},
      {"the generic's", [&] { return ProFaminstanceValueGet(&row, &column, &got); },
       PRO_TK_NO_ERROR},
      {"of no row", [&] { return ProFaminstanceValueGet(&no_row, &column, &got); },
       PRO_TK_E_NOT_FOUND},
      {"another type", [&] { return ProFaminstanceValueSet(&row, &column, &yes); },
       PRO_TK_INVALID_TYPE},
      {"its own", [&] { return ProFaminstanceValueSet(&row, &column, &value); }, PRO_TK_NO_ERROR},
      {"a record of zeroes", [&] { return ProFamtableItemAdd(&table, &unfilled); },
       PRO_TK_BAD_INPUTS, "ProFamtableItemAdd: column that no call has filled"},
  });
  EXPECT_EQ(generic, lid_->handle);
  EXPECT_EQ(got.value.i_val, 2);
  const FamilyInstance* const held = lid_->solid().family_instances.Find("lid_m8");
  ASSERT_NE(held->cells.Find("count"), nullptr);
  EXPECT_EQ(held->cells.Find("count")->value, ParameterValue(5));
}

TEST_F(HostContract, RepresentationsAreMadeOfDataThatStaysTheCallers) {
  ProName name = L"REP";
  ProName bad = L"a b/c";
  ProName other = L"OTHER";
  ProSimprepdata* data = nullptr;
  ProSimprepdata* twice = nullptr;
  ProSimprepdata* refused = nullptr;
  ProSimprepAction action = {};
  ProSimprepAction unfilled = {};
  ProSimprepitem item = {};
  ProSimprepitem elsewhere = {};
  ProSimprep rep = {};
  ProSimprep found = {};
  ProIdTable path = {};
  const auto alloc = [&](ProName of, ProSimprepdata** place) {
    return ProSimprepdataAlloc(of, PRO_B_FALSE, PRO_SIMPREP_INCLUDE, place);
  };
  Check({
      {"data", [&] { return alloc(name, &data); }, PRO_TK_NO_ERROR},
      {"data of a bad name", [&] { return alloc(bad, &refused); }, PRO_TK_NO_ERROR},
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
      {"a bad name", [&] { return ProSimprepCreate(box_->handle, refused, &rep); },
       PRO_TK_INVALID_NAME},
      {"made", [&] { return ProSimprepCreate(box_->handle, data, &rep); }, PRO_TK_NO_ERROR},
      {"made again", [&] { return ProSimprepCreate(box_->handle, data, &rep); }, PRO_TK_E_FOUND},
      {"found", [&] { return ProSimprepInit(name, -1, box_->handle, &found); }, PRO_TK_NO_ERROR},
      {"not found", [&] { return ProSimprepInit(bad, -1, box_->handle, &found); },
       PRO_TK_E_NOT_FOUND},
      {"shown", [&] { return ProSimprepActivate(box_->handle, &found); }, PRO_TK_NO_ERROR},
      {"elsewhere", [&] { return ProSimprepActivate(lid_->handle, &found); }, PRO_TK_BAD_INPUTS,
       "ProSimprepActivate: a representation of another model"},
      {"no such component", [&] { return ProSimprepdataitemInit(path, 0, 9, &action, &elsewhere); },
       PRO_TK_NO_ERROR},
      {"added",
       [&] { return ProSimprepdataitemAdd(refused, PRO_SIMPREP_COMPONENT_ITEM, &elsewhere); },
       PRO_TK_NO_ERROR},
      {"data with an item twice", [&] { return alloc(other, &twice); }, PRO_TK_NO_ERROR},
      {"once", [&] { return ProSimprepdataitemAdd(twice, PRO_SIMPREP_COMPONENT_ITEM, &item); },
       PRO_TK_NO_ERROR},
      {"twice", [&] { return ProSimprepdataitemAdd(twice, PRO_SIMPREP_COMPONENT_ITEM, &item); },
       PRO_TK_NO_ERROR},
      {"not made", [&] { return ProSimprepCreate(box_->handle, twice, &rep); }, PRO_TK_BAD_INPUTS,
       "ProSimprepCreate: two items for the component 7"},
      {"freed as well", [&] { return ProSimprepdataFree(&twice); }, PRO_TK_NO_ERROR},
      {"freed", [&] { return ProSimprepdataFree(&data); }, PRO_TK_NO_ERROR},
      {"the other one", [&] { return ProSimprepdataFree(&refused); }, PRO_TK_NO_ERROR},
  });
  EXPECT_EQ(data, nullptr);
  EXPECT_EQ(box_->solid().active_rep, "REP");
  ASSERT_EQ(box_->solid().reps.size(), 1u);
  EXPECT_EQ(box_->solid().reps[0].items[0].component, 7);
  EXPECT_EQ(box_->solid().reps[0].items[0].action, RepAction::kExclude);
}

TEST_F(HostContract, RemovedConstraintsLetThoseBehindThemMoveDown) {
  Feature& component = *box_->FindFeature(7);
  for (const int type : {0, 2, 6}) component.constraints.push_back({type, {}, {}});
  ProAsmcomp lid = Item(PRO_FEATURE, 7, box_->handle);
  ProAsmcomp datum = Item(PRO_FEATURE, 9, box_->handle);
  ProMatrix position = {};
  Check({
      {"the first", [&] { return ProAsmcompConstrRemove(&lid, 0); }, PRO_TK_NO_ERROR},
      {"the second of two", [&] { return ProAsmcompConstrRemove(&lid, 1); }, PRO_TK_NO_ERROR},
      {"beyond the rest", [&] { return ProAsmcompConstrRemove(&lid, 2); }, PRO_TK_E_NOT_FOUND},
      {"of no component", [&] { return ProAsmcompConstrRemove(&datum, 0); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompConstrRemove: feature 9 is no component"},
      {"regenerated", [&] { return ProAsmcompRegenerate(&lid, PRO_B_TRUE); }, PRO_TK_NO_ERROR},
      {"its place", [&] { return ProAsmcompPositionGet(&lid, position); }, PRO_TK_NO_ERROR},
  });
  ASSERT_EQ(component.constraints.size(), 1u);
  EXPECT_EQ(component.constraints[0].type, 2);
  EXPECT_EQ(position[3][3], 1.0);
}

TEST_F(HostContract, ABackupTakesTheRecordOfItsModel) {
  ProMdldata lid = {};
  ProMdldata none = {};
  ASSERT_EQ(ProMdlDataGet(lid_->handle, &lid), PRO_TK_NO_ERROR);
  Check({
      {"another model's", [&] { return ProMdlBackup(box_->handle, &lid); }, PRO_TK_BAD_INPUTS,
       "ProMdlBackup: the record is that of another model"},
      {"no record", [&] { return ProMdlBackup(lid_->handle, nullptr); }, PRO_TK_BAD_INPUTS,
       "ProMdlBackup: null record"},
      {"zeroes", [&] { return ProMdlBackup(lid_->handle, &none); }, PRO_TK_BAD_INPUTS,
       "ProMdlBackup: the record is that of another model"},
  });
}

}  // namespace
}  // namespace wb
