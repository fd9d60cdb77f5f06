// The record of a view's display, whose fields the host may have in either of two orders.
#pragma once

#include "workbench/host/call.h"
#include "workbench/session/drawing.h"

namespace wb {

// Fills `display`. Where the order is the usual one, a record that cannot be is a misuse; where it
// is the other one, the record may have been written in good faith and is only refused.
ProError ReadDisplay(const Call& call, const ProDrawingViewDisplay& record, ViewDisplay& display);

void FillDisplay(const Call& call, const ViewDisplay& display, ProDrawingViewDisplay& record);

}  // namespace wb
