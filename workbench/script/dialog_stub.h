// The lines by which a script answers a dialog as it stands, to be pasted and changed.
#pragma once

#include <string>

#include "workbench/host/live_dialog.h"

namespace wb {

// From "dialog NAME" to its "end". Every field that can be used is set to what it holds, and what
// would do something (buttons, choices not made yet) stands there as a comment.
std::string DialogStub(const LiveDialog& dialog);

}  // namespace wb
