// Views of drawings: making, turning, moving and showing them.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/selection.h"
#include "toolkit/types.h"
#include "toolkit/view.h"

// Places and outlines are on the sheet.

// The order of the fields behind the style is not certain: read, change, write, and read again.
typedef struct {
  ProDisplayStyle style;
  ProBoolean quilt_hlr;
  int tangent_edge_display;
  int cable_display;
  ProBoolean concept_model;
  ProBoolean weld_xsec;
} ProDrawingViewDisplay;
static_assert(sizeof(ProDrawingViewDisplay) == 24);

// Those of all sheets in the order of their making, as a ProArray that the caller frees.
PRO_FUNCTION(ProError, ProDrawingViewsCollect, ProDrawing drawing, ProView** views);
// `scale` is the view's own; the rows of `orientation` have the length 1, and it has no shift. Pass
// null for the exploded state.
PRO_FUNCTION(ProError, ProDrawingGeneralviewCreate, ProDrawing drawing, ProSolid solid, int sheet,
             ProBoolean is_exploded, wchar_t* exploded_state, Pro3dPnt position, double scale,
             ProMatrix orientation, ProView* view);
// Its side follows from the position against the parent's outline; sheet, solid and scale are the
// parent's.
PRO_FUNCTION(ProError, ProDrawingProjectedviewCreate, ProDrawing drawing, ProView parent,
             ProBoolean is_exploded, Pro3dPnt position, ProView* view);
PRO_FUNCTION(ProError, ProDrawingViewDelete, ProDrawing drawing, ProView view,
             ProBoolean with_children);

// A projection keeps to its axis, and children follow.
PRO_FUNCTION(ProError, ProDrawingViewMove, ProDrawing drawing, ProView view, ProVector by);
// `reference` is "Normal", "Vertical" or "Horizontal", `axis` null; degrees. Read the transform
// back: neither the kind of the reference nor the sense is certain.
PRO_FUNCTION(ProError, ProDrawingViewOrientationFromAngleSet, ProDrawing drawing, ProView view,
             wchar_t* reference, ProSelection axis, double angle);
// The outline is up to date after it.
PRO_FUNCTION(ProError, ProDrawingViewRegenerate, ProDrawing drawing, ProView view);

// Lower left and upper right corner.
PRO_FUNCTION(ProError, ProDrawingViewOutlineGet, ProDrawing drawing, ProView view,
             Pro3dPnt outline[2]);
// The rows carry the scale.
PRO_FUNCTION(ProError, ProDrawingViewTransformGet, ProDrawing drawing, ProView view,
             ProBoolean view_to_drawing, ProMatrix matrix);
PRO_FUNCTION(ProError, ProDrawingViewTypeGet, ProDrawing drawing, ProView view, ProViewType* type);
PRO_FUNCTION(ProError, ProDrawingViewSheetGet, ProDrawing drawing, ProView view, int* sheet);
PRO_FUNCTION(ProError, ProDrawingViewSolidGet, ProDrawing drawing, ProView view, ProSolid* solid);
PRO_FUNCTION(ProError, ProDrawingViewParentGet, ProDrawing drawing, ProView view, ProView* parent);

// The scale that is in force, whether it is the view's own, and a new one for such a view.
PRO_FUNCTION(ProError, ProDrawingViewScaleGet, ProDrawing drawing, ProView view, double* scale);
PRO_FUNCTION(ProError, ProDrawingViewScaleIsUserdefined, ProDrawing drawing, ProView view,
             ProBoolean* is_own);
PRO_FUNCTION(ProError, ProDrawingViewScaleSet, ProDrawing drawing, ProView view, double scale);

PRO_FUNCTION(ProError, ProDrawingViewDisplayGet, ProDrawing drawing, ProView view,
             ProDrawingViewDisplay* display);
// Every field is applied.
PRO_FUNCTION(ProError, ProDrawingViewDisplaySet, ProDrawing drawing, ProView view,
             ProDrawingViewDisplay* display);

// The view in which something was picked.
PRO_FUNCTION(ProError, ProSelectionViewGet, ProSelection selection, ProView* view);
