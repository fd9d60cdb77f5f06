// SameScale: gives a typed number to the views that have a scale of their own, and to the first
// sheet for every model that a view shows, whichever sheet the view is on.
#include "drawing/change/same_scale.h"

#include <cmath>
#include <limits>

#include "drawing/change/drawing_views.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "toolkit/drawing.h"
#include "toolkit/message.h"
#include "toolkit/model.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

void Log(ProDrawing drawing, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(drawing, function, status);
}

void GiveScale(ProDrawing drawing, ProView view, double scale) {
  if (HasOwnScale(drawing, view).value_or(false)) {
    Log(drawing, "ProDrawingViewScaleSet", ProDrawingViewScaleSet(drawing, view, scale));
  }
  if (ProSolid solid = SolidOf(drawing, view)) {
    Log(drawing, "ProDrawingScaleSet", ProDrawingScaleSet(drawing, solid, kFirstSheet, scale));
  }
}

}  // namespace

ProError SameScale() {
  DisplayNote("USER Enter any double scale: ");
  double scale = std::numeric_limits<double>::quiet_NaN();
  ProError status = ProMessageDoubleRead(nullptr, &scale);
  if (!Ok(status)) return status;
  if (std::isnan(scale)) return PRO_TK_GENERAL_ERROR;
  // Deliberately whatever the current model is: one that is no drawing has no views.
  ProMdl drawing = nullptr;
  status = ProMdlCurrentGet(&drawing);
  HostArray<ProView> views;
  if (Ok(status) && drawing != nullptr) status = ProDrawingViewsCollect(drawing, views.put());
  const int count = Ok(status) ? views.size() : 0;
  if (count == 0) {
    Log(drawing, "ProDrawingViewsCollect", status);
    ShowMessage(L"\t当前无视图\t");
    return PRO_TK_E_NOT_FOUND;
  }
  for (int i = 0; i < count; ++i) GiveScale(drawing, views[i], scale);
  return ProDwgSheetRegenerate(drawing, kFirstSheet);
}

}  // namespace qm
