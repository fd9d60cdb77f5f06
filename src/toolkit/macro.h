// Macros of the host, as its users record them.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// Copied and queued: it runs after the command, and the answer says nothing of its success.
PRO_FUNCTION(ProError, ProMacroLoad, wchar_t* macro);
