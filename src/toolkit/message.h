// Message area: notes, texts and prompts from the application's message files.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

PRO_FUNCTION(ProError, ProMessageDisplay, wchar_t* file, const char* key, ...);
// Answers the prompt shown just before; a null range takes any number. `value` is untouched unless
// the call succeeds.
PRO_FUNCTION(ProError, ProMessageDoubleRead, double* range, double* value);
// Own PRO_LINE_SIZE characters, whatever the length: whether it counts the closing zero is not
// known. PRO_TK_MSG_USER_QUIT when the user cancels.
PRO_FUNCTION(ProError, ProMessageStringRead, int length, wchar_t* text);
PRO_FUNCTION(ProError, ProMessageToBuffer, wchar_t* line, wchar_t* file, const char* key, ...);
