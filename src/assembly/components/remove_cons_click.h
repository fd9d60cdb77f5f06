// The middle click that confirms the host's placement dialog.
#pragma once

namespace qm {

// Queues one click of the middle button, so that the modal dialog which opens next is confirmed at
// once. The click comes from a thread of its own, which has ended when this returns and calls
// nothing of the host. A failure is logged: the user then confirms the dialog himself.
void QueueMiddleClick();

}  // namespace qm
