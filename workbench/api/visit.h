// The visit that every family of host functions offers over its things.
#pragma once

#include "workbench/host/call.h"

namespace wb {

// Hands the items from `item_at(0)`, `item_at(1)` ... on, as long as `count()` says that there are
// any: the filter may skip one, the action may end the visit with its answer. The plug-in may add
// things meanwhile; when the user erases the `model` itself the workbench does not know how the
// host would go on.
template <typename Count, typename ItemAt, typename Action, typename Filter>
ProError VisitItems(const Call& call, ProMdl model, Count count, ItemAt item_at, Action action,
                    Filter filter, ProAppData data) {
  if (action == nullptr) call.Fail("null visit action");
  bool visited = false;
  for (size_t i = 0; i < count(); ++i) {
    auto item = item_at(i);
    // Records are handed on by their address, handles as they are.
    const auto handed = [&] {
      if constexpr (std::is_pointer_v<decltype(item)>) {
        return item;
      } else {
        return &item;
      }
    };
    const ProError filtered = filter == nullptr ? PRO_TK_NO_ERROR : filter(handed(), data);
    call.CheckStillThere(model);
    if (filtered == PRO_TK_CONTINUE) continue;
    visited = true;
    const ProError answer = action(handed(), filtered, data);
    call.CheckStillThere(model);
    if (answer != PRO_TK_NO_ERROR) return answer;
  }
  return visited ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
}

}  // namespace wb
