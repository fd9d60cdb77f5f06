// Tables on the sheets of drawings.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef ProModelitem ProDwgtable;

// Those of all sheets, as a ProArray that the caller frees.
PRO_FUNCTION(ProError, ProDrawingTablesCollect, ProDrawing drawing, ProDwgtable** tables);
PRO_FUNCTION(ProError, ProDwgtableIsFromFormat, ProDwgtable* table, ProBoolean* is_from_format);
PRO_FUNCTION(ProError, ProDwgtableSegCount, ProDwgtable* table, int* count);
// Segments count from 0; if that fails, -1 may stand for a table in one piece.
PRO_FUNCTION(ProError, ProDwgtableSegSheetGet, ProDwgtable* table, int segment, int* sheet);
PRO_FUNCTION(ProError, ProDwgtableDelete, ProDwgtable* table, int repaint);
