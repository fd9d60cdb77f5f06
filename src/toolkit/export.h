// Files of other programs, written of drawings and models.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef struct pro_2d_export_data* Pro2dExportdata;
typedef struct pro_pdf_options* ProPDFOptions;

// One for each file; sheets count from 1.
PRO_FUNCTION(ProError, Pro2dExportdataAlloc, Pro2dExportdata* data);
PRO_FUNCTION(ProError, Pro2dExportdataFree, Pro2dExportdata data);
PRO_FUNCTION(ProError, Pro2dExportdataSheetoptionSet, Pro2dExportdata data,
             Pro2dSheetoption option);
PRO_FUNCTION(ProError, Pro2dExportdataModelspacesheetSet, Pro2dExportdata data, int sheet);
// Null data: the current sheet. The host adds the extension where the file has none.
PRO_FUNCTION(ProError, Pro2dExport, int type, ProPath file, ProMdl drawing, Pro2dExportdata data);

// The kind of value must fit the option; otherwise PRO_TK_INVALID_TYPE.
PRO_FUNCTION(ProError, ProPDFoptionsAlloc, ProPDFOptions* options);
PRO_FUNCTION(ProError, ProPDFoptionsFree, ProPDFOptions options);
PRO_FUNCTION(ProError, ProPDFoptionsIntpropertySet, ProPDFOptions options, int option, int value);
PRO_FUNCTION(ProError, ProPDFoptionsBoolpropertySet, ProPDFOptions options, int option,
             ProBoolean value);
// The drawing is shown in a window. A file that is there is written over; a bare name lands in the
// working directory.
PRO_FUNCTION(ProError, ProPDFExport, ProMdl model, ProPath file, ProPDFOptions options);
// The profile decides all that options would; with or without ".dop".
PRO_FUNCTION(ProError, ProPDFWithProfileExport, ProMdl model, ProPath file, ProPath profile);

// The four last arguments are null for STEP and IGES; an assembly gives one file.
PRO_FUNCTION(ProError, ProOutputFileWrite, ProMdl model, int type, ProPath file,
             ProAppData argument_1, ProAppData argument_2, ProAppData argument_3,
             ProAppData argument_4);
