// The middle click that confirms the host's placement dialog.
#pragma once

namespace qm {

// Queues one click of the middle button, so that the modal dialog which opens next is confirmed at
// once. The click comes from a thread of its own, which has ended when this returns and calls
// nothing of the host. False, after a failure in the run log: the user then has the dialog to
// himself.
bool QueueMiddleClick();

}  // namespace qm
