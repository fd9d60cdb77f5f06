// Drawings: making them of a template, their sheets, models, scales and formats.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/model.h"
#include "toolkit/types.h"

typedef int ProDwgcreateOptions;
// An array of records that nobody looks into.
typedef struct pro_dwgcreate_errors* ProDwgcreateErrs;

// `model` is the record that ProMdlDataGet filled. The template is one of the working directory, by
// its name, or of any folder, by its full path. On PRO_TK_DWGCREATE_ERRORS the drawing may be there
// all the same, and the errors, null before the call, are the caller's.
PRO_FUNCTION(ProError, ProDrawingFromTmpltCreate, ProName name, wchar_t* template_name,
             ProMdldata* model, ProDwgcreateOptions options, ProDrawing* drawing,
             ProDwgcreateErrs* errors);
PRO_FUNCTION(ProError, ProDwgcreateErrsFree, ProDwgcreateErrs* errors);

// Sheets count from 1. `size_name` receives the sheet's size, for example "A3".
PRO_FUNCTION(ProError, ProDrawingSheetTrfGet, ProDrawing drawing, int sheet, ProName size_name,
             ProMatrix transform);
PRO_FUNCTION(ProError, ProDrawingSheetsCount, ProDrawing drawing, int* count);
PRO_FUNCTION(ProError, ProDrawingCurrentSheetGet, ProDrawing drawing, int* sheet);
PRO_FUNCTION(ProError, ProDrawingCurrentSheetSet, ProDrawing drawing, int sheet);
PRO_FUNCTION(ProError, ProDwgSheetRegenerate, ProDrawing drawing, int sheet);

// The models in the order in which they were added, as a ProArray that the caller frees.
PRO_FUNCTION(ProError, ProDrawingSolidsCollect, ProDrawing drawing, ProSolid** solids);
PRO_FUNCTION(ProError, ProDrawingCurrentsolidGet, ProDrawing drawing, ProSolid* solid);
PRO_FUNCTION(ProError, ProDrawingCurrentsolidSet, ProDrawing drawing, ProSolid solid);

// The scale of a sheet for one of the models; views without a scale of their own follow it.
PRO_FUNCTION(ProError, ProDrawingScaleGet, ProDrawing drawing, ProSolid solid, int sheet,
             double* scale);
PRO_FUNCTION(ProError, ProDrawingScaleSet, ProDrawing drawing, ProSolid solid, int sheet,
             double scale);

// Adds or replaces; a format's sheet 0 and 1 are both its first one.
PRO_FUNCTION(ProError, ProDrawingFormatAdd, ProDrawing drawing, int sheet, ProSolid solid,
             ProMdl format, int format_sheet);
// kAllSheets for all.
PRO_FUNCTION(ProError, ProDrawingSheetFormatHide, ProDrawing drawing, int sheet);
PRO_FUNCTION(ProError, ProDrawingSheetFormatShow, ProDrawing drawing, int sheet);
PRO_FUNCTION(ProError, ProDrawingSheetFormatIsShown, ProDrawing drawing, int sheet,
             ProBoolean* is_shown);
