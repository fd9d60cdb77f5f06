// The timers that the plug-in has set.
#pragma once

namespace wb {

// Calls the procedures of the timers that are pending now, as the message loop would. A timer stays
// pending until the plug-in stops it.
void FireTimers();

}  // namespace wb
