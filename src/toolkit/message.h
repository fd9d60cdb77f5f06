// Message area: notes and texts from the application's message files.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

PRO_FUNCTION(ProError, ProMessageDisplay, wchar_t* file, const char* key, ...);
PRO_FUNCTION(ProError, ProMessageToBuffer, wchar_t* line, wchar_t* file, const char* key, ...);
