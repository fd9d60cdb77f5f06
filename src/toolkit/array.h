// Expandable arrays: every list that crosses a call of the host.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

PRO_FUNCTION(ProError, ProArrayAlloc, int n_objects, int object_size, int reallocation_size,
             ProArray* array);
PRO_FUNCTION(ProError, ProArrayFree, ProArray* array);
PRO_FUNCTION(ProError, ProArraySizeGet, ProArray array, int* size);
// `index` PRO_VALUE_UNUSED appends; the array may move.
PRO_FUNCTION(ProError, ProArrayObjectAdd, ProArray* array, int index, int n_objects, void* object);

PRO_FUNCTION(ProError, ProStringarrayFree, char** strings, int count);
PRO_FUNCTION(ProError, ProStringFree, char* text);
PRO_FUNCTION(ProError, ProWstringFree, wchar_t* text);
