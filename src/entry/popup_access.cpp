// Popup access functions: they ask the selection buffer, not the list that comes with the call.
#include "entry/popup_access.h"

#include "entry/access.h"
#include "entry/popup_rules.h"
#include "frame/guard/shield.h"
#include "frame/models/preselection.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

uiCmdAccessState Offered(bool is_offered) {
  return is_offered ? ACCESS_AVAILABLE : ACCESS_REMOVE;
}

uiCmdAccessState ForDisplay(uiCmdCmdId, ProAppData, ProSelection*) {
  const auto selected = ReadPreselection();
  if (!selected) return ACCESS_UNAVAILABLE;
  const auto item = ItemOf((*selected)[0]);
  return Offered(item && DisplayEntriesOffered(item->type));
}

uiCmdAccessState ForName(uiCmdCmdId, ProAppData, ProSelection*) {
  const auto selected = ReadPreselection();
  if (!selected || selected->size() != 1) return ACCESS_REMOVE;
  const auto item = ItemOf((*selected)[0]);
  return Offered(item && NameEntriesOffered(item->type));
}

uiCmdAccessState ForOpenDrawing(uiCmdCmdId, ProAppData, ProSelection*) {
  return AccessNow(AccessRule::kPartOrAssemblyMode);
}

}  // namespace

uiCmdAccessState DisplayEntryAccess(uiCmdCmdId command, ProAppData data,
                                    ProSelection* selections) noexcept {
  return Shielded<&ForDisplay>::Call(command, data, selections);
}

uiCmdAccessState NameEntryAccess(uiCmdCmdId command, ProAppData data,
                                 ProSelection* selections) noexcept {
  return Shielded<&ForName>::Call(command, data, selections);
}

uiCmdAccessState OpenDrawingEntryAccess(uiCmdCmdId command, ProAppData data,
                                        ProSelection* selections) noexcept {
  return Shielded<&ForOpenDrawing>::Call(command, data, selections);
}

}  // namespace qm
