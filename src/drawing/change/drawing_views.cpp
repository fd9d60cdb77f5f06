// Reads views.
#include "drawing/change/drawing_views.h"

#include "frame/messages/run_log.h"
#include "toolkit/drawing.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// Far more than any drawing has. Each of them is worked on, so that a number from nowhere would
// keep the host busy for hours.
constexpr int kMostSheets = 10'000;

// Whether the answer counts; a failure is logged with the drawing's name.
bool Told(ProDrawing drawing, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(drawing, function, status);
  return Ok(status);
}

}  // namespace

CollectedViews ViewsOf(ProDrawing drawing) {
  HostArray<ProView> array;
  CollectedViews collected;
  const ProError status = ProDrawingViewsCollect(drawing, array.put());
  const int count = Ok(status) ? array.size() : 0;
  if (count > 0 || !Ok(status)) collected.status = status;
  for (int i = 0; i < count; ++i) {
    DrawingView& view = collected.views.emplace_back(DrawingView{array[i]});
    int sheet = 0;
    if (Told(drawing, "ProDrawingViewSheetGet",
             ProDrawingViewSheetGet(drawing, view.view, &sheet))) {
      view.sheet = sheet;
    }
  }
  return collected;
}

std::vector<std::vector<ProView>> BySheet(const std::vector<DrawingView>& views, int sheet_count) {
  std::vector<std::vector<ProView>> sheets(static_cast<size_t>(sheet_count));
  for (const DrawingView& view : views) {
    if (view.sheet >= kFirstSheet && view.sheet <= sheet_count) {
      sheets[static_cast<size_t>(view.sheet - kFirstSheet)].push_back(view.view);
    }
  }
  return sheets;
}

int SheetCount(ProDrawing drawing) {
  int count = 0;
  ProError status = ProDrawingSheetsCount(drawing, &count);
  if (Ok(status) && (count < 1 || count > kMostSheets)) status = PRO_TK_OUT_OF_RANGE;
  return Told(drawing, "ProDrawingSheetsCount", status) ? count : 0;
}

void ShowSheet(ProDrawing drawing, int sheet) {
  Told(drawing, "ProDrawingCurrentSheetSet", ProDrawingCurrentSheetSet(drawing, sheet));
}

ProSolid SolidOf(ProDrawing drawing, ProView view) {
  ProSolid solid = nullptr;
  const ProError status = ProDrawingViewSolidGet(drawing, view, &solid);
  return Told(drawing, "ProDrawingViewSolidGet", status) ? solid : nullptr;
}

bool IsGeneral(ProDrawing drawing, ProView view) {
  ProViewType type = PRO_VIEW_OF_FLAT_TYPE;
  const ProError status = ProDrawingViewTypeGet(drawing, view, &type);
  return Told(drawing, "ProDrawingViewTypeGet", status) && type == PRO_VIEW_GENERAL;
}

std::optional<double> ScaleOf(ProDrawing drawing, ProView view) {
  double scale = 0;
  const ProError status = ProDrawingViewScaleGet(drawing, view, &scale);
  return Told(drawing, "ProDrawingViewScaleGet", status) && scale > 0 ? std::optional(scale)
                                                                      : std::nullopt;
}

std::optional<bool> HasOwnScale(ProDrawing drawing, ProView view) {
  ProBoolean own = PRO_B_FALSE;
  const ProError status = ProDrawingViewScaleIsUserdefined(drawing, view, &own);
  if (!Told(drawing, "ProDrawingViewScaleIsUserdefined", status)) return std::nullopt;
  return own != PRO_B_FALSE;
}

std::optional<double> SheetScale(ProDrawing drawing, ProSolid solid, int sheet) {
  double scale = 0;
  const ProError status = ProDrawingScaleGet(drawing, solid, sheet, &scale);
  return Told(drawing, "ProDrawingScaleGet", status) && scale > 0 ? std::optional(scale)
                                                                  : std::nullopt;
}

bool DifferentScales(double a, double b) {
  return a - b > kSameScale || b - a > kSameScale;
}

}  // namespace qm
