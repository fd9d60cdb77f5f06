// What a selection points at.
#include "frame/models/preselection.h"

#include "toolkit/assembly.h"

namespace qm {

std::optional<ProModelitem> ItemOf(ProSelection selection) {
  ProModelitem item = {PRO_TYPE_INVALID, -1, nullptr};
  if (selection == nullptr || !Ok(ProSelectionModelitemGet(selection, &item))) return std::nullopt;
  return item;
}

ProMdl ComponentModelOf(ProSelection selection) {
  ProAsmcomppath path = {};
  if (selection == nullptr || !Ok(ProSelectionAsmcomppathGet(selection, &path))) return nullptr;
  // An answer without an owner is no path.
  ProMdl model = nullptr;
  if (path.owner == nullptr || !Ok(ProAsmcomppathMdlGet(&path, &model))) return nullptr;
  return model;
}

}  // namespace qm
