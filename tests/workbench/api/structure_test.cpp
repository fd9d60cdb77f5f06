// Components, their constraints, family tables and simplified representations, as a careless
// plug-in might make them.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

class ComponentContract : public HostContract {
 protected:
  ComponentContract() {
    lid_->solid().coordinate_systems.Add({4, kIdentityPlacement});
    box_->solid().coordinate_systems.Add({5, kIdentityPlacement});
    lid_handle_ = lid_->handle;
    box_handle_ = box_->handle;
  }

  ProSelection Select(ProType type, int id, Model& owner, Model* root) {
    ProModelitem item = Item(type, id, owner.handle);
    ProIdTable none{};
    ProAsmcomppath path{};
    ProSelection selection = nullptr;
    if (root != nullptr) {
      EXPECT_EQ(ProAsmcomppathInit(root->handle, none, 0, &path), PRO_TK_NO_ERROR);
    }
    EXPECT_EQ(ProSelectionAlloc(root != nullptr ? &path : nullptr, &item, &selection),
              PRO_TK_NO_ERROR);
    return selection;
  }

  ProAsmcompconstraint NewConstraint(ProAsmcompConstrType type) {
    ProAsmcompconstraint constraint = nullptr;
    EXPECT_EQ(ProAsmcompconstraintAlloc(&constraint), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProAsmcompconstraintTypeSet(constraint, type), PRO_TK_NO_ERROR);
    return constraint;
  }

  // What setting this one constraint on component 7 answers.
  ProError SetOne(ProAsmcompconstraint constraint) {
    ProArray array = nullptr;
    EXPECT_EQ(ProArrayAlloc(0, sizeof(constraint), 1, &array), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, 1, &constraint), PRO_TK_NO_ERROR);
    ProAsmcomp component = Item(PRO_FEATURE, 7, box_->handle);
    const ProError status =
        ProAsmcompConstraintsSet(nullptr, &component, static_cast<ProAsmcompconstraint*>(array));
    EXPECT_EQ(ProArrayFree(&array), PRO_TK_NO_ERROR);
    return status;
  }

  ProMdl lid_handle_ = nullptr;
  ProMdl box_handle_ = nullptr;
};

ProMatrix kIdentity = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
ProMatrix kTwice = {{2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 1}};

TEST_F(ComponentContract, AnAssemblyNeverHoldsItself) {
  ProAsmcomp made{};
  Check({
      {"itself", [&] { return ProAsmcompAssemble(box_handle_, box_handle_, kIdentity, &made); },
       PRO_TK_BAD_CONTEXT},
      {"scaled", [&] { return ProAsmcompAssemble(box_handle_, lid_handle_, kTwice, &made); },
       PRO_TK_INVALID_MATRIX},
      {"into a part",
       [&] { return ProAsmcompAssemble(lid_handle_, lid_handle_, kIdentity, &made); },
       PRO_TK_BAD_INPUTS, "ProAsmcompAssemble: a part given where an assembly is needed"},
  });
  EXPECT_EQ(FeaturesOf(*box_).size(), 3u);
}

TEST_F(ComponentContract, ReferencesAreChecked) {
  const ProAsmcompconstraint constraint = NewConstraint(PRO_ASM_CSYS);
  ProSelection in_box = Select(PRO_CSYS, 5, *box_, box_);
  ProSelection pathless = Select(PRO_CSYS, 5, *box_, nullptr);
  ProSelection in_lid = Select(PRO_CSYS, 4, *lid_, nullptr);
  ProSelection unknown = Select(PRO_CSYS, 9, *lid_, nullptr);
  const auto set = [&](ProSelection one, ProSelection other) {
    ProAsmcompconstraintAsmreferenceSet(constraint, one, PRO_DATUM_SIDE_YELLOW);
    ProAsmcompconstraintCompreferenceSet(constraint, other, PRO_DATUM_SIDE_YELLOW);
    return SetOne(constraint);
  };
  Check({
      {"no path from the assembly", [&] { return set(pathless, in_lid); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompConstraintsSet: the reference in the assembly has no path from it"},
      {"of another model", [&] { return set(in_box, in_box); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompConstraintsSet: the component's reference is not one of its model without a "
       "path"},
      {"no such one", [&] { return set(in_box, unknown); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompConstraintsSet: a reference is no coordinate system"},
      {"both right", [&] { return set(in_box, in_lid); }, PRO_TK_NO_ERROR},
      {"no type", [&] { return SetOne(NewConstraint(PRO_ASM_UNDEFINED)); }, PRO_TK_BAD_INPUTS,
       "ProAsmcompConstraintsSet: a constraint without a type"},
      {"another type", [&] { return SetOne(NewConstraint(static_cast<ProAsmcompConstrType>(1))); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProAsmcompConstraintsSet: a constraint of type 1"},
  });
  ProSelectionFree(&in_lid);
  Check({{"freed before it is set", [&] { return SetOne(constraint); }, PRO_TK_BAD_INPUTS,
          "ProAsmcompConstraintsSet: stale selection handle (its object is gone)"}});
  ASSERT_EQ(box_->FindFeature(7)->constraints.size(), 1u);
}

TEST_F(HostContract, ColumnsOfFamilyTablesAreAddedOnceAndKeepTheirType) {
  lid_->solid().family_instances.Add({"lid_m8", {}});
  ProFamtable table = {};
  ProFamtableItem column = {};
  ProFamtableItem unfilled = {};
  ProFaminstance row = {};
  ProName name = L"LID_M8";
  ProParameter count = LidParameter(L"COUNT");
  ProParamvalue yes = Value(PRO_PARAM_BOOLEAN, 1);
  Check({
      {"the table", [&] { return ProFamtableInit(lid_->handle, &table); }, PRO_TK_NO_ERROR},
      {"the column", [&] { return ProParameterToFamtableItem(&count, &column); }, PRO_TK_NO_ERROR},
      {"the row", [&] { return ProFaminstanceInit(name, &table, &row); }, PRO_TK_NO_ERROR},
      {"added", [&] { return ProFamtableItemAdd(&table, &column); }, PRO_TK_NO_ERROR},
      {"added again", [&] { return ProFamtableItemAdd(&table, &column); }, PRO_TK_E_FOUND},
      {"another type", [&] { return ProFaminstanceValueSet(&row, &column, &yes); },
       PRO_TK_INVALID_TYPE},
      {"a record of zeroes", [&] { return ProFamtableItemAdd(&table, &unfilled); },
       PRO_TK_BAD_INPUTS, "ProFamtableItemAdd: column that no call has filled"},
  });
}

TEST_F(HostContract, ARepresentationSaysOfEachComponentOnceWhatBecomesOfIt) {
  ProName name = L"REP";
  ProSimprepdata* data = nullptr;
  ProSimprepAction action = {};
  ProSimprepitem item = {};
  ProSimprep rep = {};
  ProIdTable path = {};
  EXPECT_EQ(ProSimprepdataAlloc(name, PRO_B_FALSE, PRO_SIMPREP_INCLUDE, &data), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProSimprepActionInit(PRO_SIMPREP_EXCLUDE, nullptr, &action), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProSimprepdataitemInit(path, 0, 7, &action, &item), PRO_TK_NO_ERROR);
  const auto add = [&] { return ProSimprepdataitemAdd(data, PRO_SIMPREP_COMPONENT_ITEM, &item); };
  Check({
      {"once", add, PRO_TK_NO_ERROR},
      {"twice", add, PRO_TK_NO_ERROR},
      {"not made", [&] { return ProSimprepCreate(box_->handle, data, &rep); }, PRO_TK_BAD_INPUTS,
       "ProSimprepCreate: two items for the component 7"},
      {"freed", [&] { return ProSimprepdataFree(&data); }, PRO_TK_NO_ERROR},
  });
}

}  // namespace
}  // namespace wb
