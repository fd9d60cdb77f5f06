// Models are known by their handles and named without case; their copies, and files loaded by path.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, ModelsAreKnownByTheirLiveHandles) {
  ProMdl model = nullptr;
  wchar_t wanted[] = L"LID";
  wchar_t overlong[] = L"a_name_of_more_than_thirty_one_x";
  wchar_t path[] = L"Z:\\a folder of a long name\\lid.prt";
  wchar_t instance[] = L"a_name_of_more_than_twenty<a_name_of_more_than_twenty>";
  Check({
      {"nothing current", [&] { return ProMdlCurrentGet(&model); }, PRO_TK_BAD_CONTEXT},
      {"names without case", [&] { return ProMdlRetrieve(wanted, PRO_MDL_PART, &model); },
       PRO_TK_NO_ERROR},
      {"of another type", [&] { return ProMdlRetrieve(wanted, PRO_MDL_ASSEMBLY, &model); },
       PRO_TK_E_NOT_FOUND},
      {"of no type", [&] { return ProMdlRetrieve(wanted, static_cast<ProMdlType>(77), &model); },
       PRO_TK_BAD_INPUTS, "ProMdlRetrieve: model type 77"},
      {"overlong", [&] { return ProMdlRetrieve(overlong, PRO_MDL_PART, &model); },
       PRO_TK_BAD_INPUTS, "ProMdlRetrieve: model name longer than 31 characters"},
      {"the path of one in session", [&] { return ProMdlRetrieve(path, PRO_MDL_PART, &model); },
       PRO_TK_NO_ERROR},
      {"of an instance", [&] { return ProMdlRetrieve(instance, PRO_MDL_PART, &model); },
       PRO_TK_NOT_IMPLEMENTED, "", "ProMdlRetrieve: an instance of a family"},
      {"no manufacturing model", [&] { return ProMfgAssemGet(box_->handle, &model); },
       PRO_TK_BAD_INPUTS, "ProMfgAssemGet: not a manufacturing model"},
  });
}

class ModelCopies : public HostContract {
 protected:
  ProError Copy(Model& source, const std::wstring& name) {
    ProName text{};
    name.copy(text, PRO_NAME_SIZE - 1);
    made_ = nullptr;
    return ProMdlCopy(source.handle, text, &made_);
  }
  ProError Load(const std::string& file, ProMdlType type) {
    ProPath path{};
    ToWide(PathToUtf8(folder_ / PathFromUtf8(file))).copy(path, PRO_PATH_SIZE - 1);
    made_ = nullptr;
    return ProMdlLoad(path, type, PRO_B_FALSE, &made_);
  }
  bool IsThere(const char* file) const { return std::filesystem::exists(folder_ / file); }

  ProMdl made_ = nullptr;
};

TEST_F(ModelCopies, ACopyIsAModelOfItsOwn) {
  ASSERT_EQ(Copy(*lid_, L"lid_2"), PRO_TK_NO_ERROR);
  host_.session.Find({"lid_2", ModelKind::kPart})->SetParameter("MASS", 9.0);
  EXPECT_EQ(std::get<double>(lid_->FindParameter("MASS")->value), 1.5);
  EXPECT_TRUE(IsThere("lid_2.prt.1"));
  host_.habits.copy_stays_in_session = true;
  ASSERT_EQ(Copy(*lid_, L"lid_3"), PRO_TK_NO_ERROR);
  EXPECT_FALSE(IsThere("lid_3.prt.1"));
  host_.habits = {};
  host_.session.MakeReadOnly(folder_);
  EXPECT_EQ(Copy(*lid_, L"lid_4"), PRO_TK_NO_PERMISSION);
}

TEST_F(ModelCopies, AFileIsLoadedByItsPath) {
  Model& lying = host_.session.Add(Model({"lying", ModelKind::kPart}));
  host_.session.Save(lying);
  host_.session.Erase(lying);
  EXPECT_EQ(Load("lying.prt", PRO_MDL_ASSEMBLY), PRO_TK_INVALID_TYPE);
  EXPECT_EQ(Load("lying.prt.2", PRO_MDL_PART), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(Load("lying.prt.1", PRO_MDL_UNUSED), PRO_TK_NO_ERROR);
  EXPECT_EQ(made_, host_.session.Find({"lying", ModelKind::kPart})->handle);
}

}  // namespace
}  // namespace wb
