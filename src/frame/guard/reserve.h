// Memory for the C++ run-time inside the plug-in when the process has none left: without a block
// for an exception, for its state on a thread or for a lock it would end the host.
#pragma once

namespace qm {

// Makes what the run-time otherwise makes at the first exception on a thread. False when there was
// no memory for it but the reserve's.
bool PrepareExceptions() noexcept;

}  // namespace qm
