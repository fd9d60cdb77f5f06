// Dimensions: value, text lines and tolerance.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef ProModelitem ProDimension;
typedef int ProToleranceTable;

PRO_FUNCTION(ProError, ProDimensionValueGet, ProDimension* dimension, double* value);
PRO_FUNCTION(ProError, ProDimensionSymbolGet, ProDimension* dimension, ProName symbol);
// Lines as a ProArray; "@D" in them is the value. A dimension that nobody has changed may give
// "@D", no lines, or a failure.
PRO_FUNCTION(ProError, ProDimensionTextGet, ProDimension* dimension, ProLine** text);
PRO_FUNCTION(ProError, ProDimensionTextSet, ProDimension* dimension, ProLine* text);

// Set the type before the values.
PRO_FUNCTION(ProError, ProDimensionToltypeGet, ProDimension* dimension, ProDimToleranceType* type);
PRO_FUNCTION(ProError, ProDimensionToltypeSet, ProDimension* dimension, ProDimToleranceType type);
// kNoToleranceTable, null and 0 for none.
PRO_FUNCTION(ProError, ProDimensionTollabelSet, ProDimension* dimension, ProToleranceTable table,
             wchar_t* table_name, int column);
PRO_FUNCTION(ProError, ProDimensionToleranceGet, ProDimension* dimension, double* upper,
             double* lower);
// `lower` is a positive amount below. Read back: the host may take numbers instead of places.
PRO_FUNCTION(ProError, ProDimensionToleranceSet, ProDimension* dimension, double* upper,
             double* lower);
