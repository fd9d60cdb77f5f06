// Paths through assemblies.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

TEST_F(HostContract, PathsLeadThroughComponents) {
  int ids[] = {7};
  ProAsmcomppath path{};
  ProAsmcomppath to_datum{};
  ProAsmcomppath to_missing{};
  ProMdl model = nullptr;
  const auto init = [&](ProAsmcomppath* place, int id) {
    ids[0] = id;
    return ProAsmcomppathInit(box_->handle, ids, 1, place);
  };
  Check({
      {"to a part", [&] { return init(&path, 7); }, PRO_TK_NO_ERROR},
      {"the part", [&] { return ProAsmcomppathMdlGet(&path, &model); }, PRO_TK_NO_ERROR},
      {"to a datum", [&] { return init(&to_datum, 9); }, PRO_TK_NO_ERROR},
      {"no part", [&] { return ProAsmcomppathMdlGet(&to_datum, &model); }, PRO_TK_BAD_INPUTS,
       "ProAsmcomppathMdlGet: \"box.asm\" has no component 9"},
      {"to a missing part", [&] { return init(&to_missing, 8); }, PRO_TK_NO_ERROR},
      {"missing", [&] { return ProAsmcomppathMdlGet(&to_missing, &model); }, PRO_TK_E_NOT_FOUND},
      {"too deep", [&] { return ProAsmcomppathInit(box_->handle, ids, 26, &path); },
       PRO_TK_BAD_INPUTS, "ProAsmcomppathInit: path of 26 levels"},
      {"no ids", [&] { return ProAsmcomppathInit(box_->handle, nullptr, 1, &path); },
       PRO_TK_BAD_INPUTS, "ProAsmcomppathInit: null id table"},
  });
}

}  // namespace
}  // namespace wb
