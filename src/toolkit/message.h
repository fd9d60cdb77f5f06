// Message area: notes, texts and prompts from the application's message files.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

PRO_FUNCTION(ProError, ProMessageDisplay, wchar_t* file, const char* key, ...);
// Answers the prompt shown just before; a null range takes any number. `value` is untouched unless
// the call succeeds.
PRO_FUNCTION(ProError, ProMessageDoubleRead, double* range, double* value);
PRO_FUNCTION(ProError, ProMessageToBuffer, wchar_t* line, wchar_t* file, const char* key, ...);
