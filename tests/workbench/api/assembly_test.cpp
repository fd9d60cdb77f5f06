// Paths through assemblies.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

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

}  // namespace
}  // namespace wb
