// What a selection points at.
#include "frame/models/preselection.h"

#include "frame/messages/run_log.h"
#include "toolkit/assembly.h"

namespace qm {
namespace {

void LogUnread(const char* function, ProError status) {
  LogFailure(std::string("a selection is not read: ") + function + " answered " +
             StatusName(status));
}

// Which one the host gives for an empty buffer is not known for sure.
bool MayMeanEmpty(ProError status) {
  return status == PRO_TK_E_NOT_FOUND || status == PRO_TK_BAD_CONTEXT ||
         status == PRO_TK_CANT_ACCESS;
}

}  // namespace

PreselectionAnswer AskPreselection() {
  SelectionArray selected;
  const ProError status = ProSelbufferSelectionsGet(selected.put());
  if (!Ok(status) && status != PRO_TK_E_NOT_FOUND) LogUnread("ProSelbufferSelectionsGet", status);
  if (!Ok(status)) return {std::nullopt, false, !MayMeanEmpty(status)};
  const auto count = ToldArraySize(selected.get());
  if (!count) {
    LogUnread("ProArraySizeGet", PRO_TK_GENERAL_ERROR);
    return {std::nullopt, true, false};
  }
  if (*count < 1) return {};
  return {Preselected(std::move(selected), *count), false, false};
}

std::optional<Preselected> ReadPreselection() {
  return AskPreselection().items;
}

std::optional<ProModelitem> ItemOf(ProSelection selection) {
  ProModelitem item = {PRO_TYPE_INVALID, -1, nullptr};
  if (selection == nullptr) return std::nullopt;
  const ProError status = ProSelectionModelitemGet(selection, &item);
  if (!Ok(status)) {
    LogUnread("ProSelectionModelitemGet", status);
    return std::nullopt;
  }
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
