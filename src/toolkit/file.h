// Files: the list of a folder's model files, and the parts of a path.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// A null folder is the working directory. Both arrays are ProArrays that the caller has made; the
// paths are added to them. Filters are like "*.drw", several parted by commas.
PRO_FUNCTION(ProError, ProFilesList, wchar_t* folder, wchar_t* filter, ProFileListOpt option,
             ProPath** files, ProPath** folders);
// Buffers of PRO_PATH_SIZE characters; the folder keeps its separator, the extension has no dot.
PRO_FUNCTION(ProError, ProFilenameParse, ProPath full, wchar_t* folder, wchar_t* name,
             wchar_t* extension, int* version);
