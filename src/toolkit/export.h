// Files of other programs, written of a model.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef struct pro_2d_export_data* Pro2dExportdata;

// Null data: the current sheet. The host adds the extension where the file has none.
PRO_FUNCTION(ProError, Pro2dExport, int type, ProPath file, ProMdl drawing, Pro2dExportdata data);
