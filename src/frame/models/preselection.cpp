// What a selection points at.
#include "frame/models/preselection.h"

#include "toolkit/assembly.h"

namespace qm {

std::optional<SelectionArray> ReadPreselection() {
  SelectionArray selected;
  const bool is_read = Ok(ProSelbufferSelectionsGet(selected.put())) && selected.size() > 0;
  return is_read ? std::optional(std::move(selected)) : std::nullopt;
}

std::optional<ProModelitem> ItemOf(ProSelection selection) {
  ProModelitem item = {PRO_TYPE_INVALID, -1, nullptr};
  if (selection == nullptr || !Ok(ProSelectionModelitemGet(selection, &item))) return std::nullopt;
  // An answer that filled nothing in is none.
  const bool is_filled = item.type != PRO_TYPE_INVALID && item.owner != nullptr;
  return is_filled ? std::optional(item) : std::nullopt;
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
