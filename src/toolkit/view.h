// Views of the windows of models: their matrices and turns about the axes of the screen.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// Null is the current view of a model's window; others are views of drawings.
typedef struct pro_view_handle* ProView;

// Rows 0 to 2 are the model's axes on the screen times the view's scale, row 3 is the shift. Fails
// for a model without a window.
PRO_FUNCTION(ProError, ProViewMatrixGet, ProMdl model, ProView view, ProMatrix matrix);
// Rows 0 to 2 must have the length 1.
PRO_FUNCTION(ProError, ProViewMatrixSet, ProMdl model, ProView view, ProMatrix matrix);
// Degrees. Read the matrix back: neither the axes' numbers nor the sense is certain.
PRO_FUNCTION(ProError, ProViewRotate, ProMdl model, ProView view, ProRotationAxis axis,
             double angle);
