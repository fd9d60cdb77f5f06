// Models are known by their handles, and named without case.
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

}  // namespace
}  // namespace wb
