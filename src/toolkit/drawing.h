// Drawings: sheets.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// Sheets count from 1. `size_name` receives the sheet's size, for example "A3".
PRO_FUNCTION(ProError, ProDrawingSheetTrfGet, ProDrawing drawing, int sheet, ProName size_name,
             ProMatrix transform);
