// Makes, turns and shows views.
#include "drawing/create/sheet_view.h"

#include <string>

#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr double kTrueSize = 1.0;

struct SheetAxisRow {
  const wchar_t* reference;
  Axis axis;  // of the screen, which the sheet's is
};
constexpr SheetAxisRow kSheetAxes[] = {
    {L"Normal", Axis::kZ}, {L"Vertical", Axis::kY}, {L"Horizontal", Axis::kX}};

void LogStatus(const char* function, ProError status) {
  if (!Ok(status)) LogFailure(std::string(function) + " answered " + StatusName(status));
}

bool IsFlag(ProBoolean value) {
  return value == PRO_B_FALSE || value == PRO_B_TRUE;
}

// Another order of the fields than ours would write numbers into the wrong ones.
bool IsPlausible(const ProDrawingViewDisplay& display) {
  const int style = display.style;
  return style >= 0 && style <= kLastDisplayStyle && IsFlag(display.quilt_hlr) &&
         IsFlag(display.concept_model) && IsFlag(display.weld_xsec);
}

}  // namespace

std::optional<SheetBox> OutlineOf(ProDrawing drawing, ProView view) {
  Pro3dPnt corners[2] = {};
  const ProError status = ProDrawingViewOutlineGet(drawing, view, corners);
  LogStatus("ProDrawingViewOutlineGet", status);
  const bool is_filled = corners[0][0] != corners[1][0] || corners[0][1] != corners[1][1];
  if (!Ok(status) || !is_filled) return std::nullopt;
  return SheetBox{corners[0][0], corners[0][1], corners[1][0], corners[1][1]};
}

void MoveView(ProDrawing drawing, ProView view, SheetPoint by) {
  ProVector vector = {by.x, by.y, 0};
  LogStatus("ProDrawingViewMove", ProDrawingViewMove(drawing, view, vector));
}

void RegenerateView(ProDrawing drawing, ProView view) {
  LogStatus("ProDrawingViewRegenerate", ProDrawingViewRegenerate(drawing, view));
}

void ShowAs(ProDrawing drawing, ProView view, ProDisplayStyle style) {
  ProDrawingViewDisplay display = {};
  if (!Ok(ProDrawingViewDisplayGet(drawing, view, &display))) display = {};
  if (!IsPlausible(display)) {
    LogEvent("ProDrawingViewDisplayGet gave a record of an unknown order: the view stays as it is");
    return;
  }
  display.style = style;
  display.tangent_edge_display = kTangentEdgesOfOurViews;
  LogStatus("ProDrawingViewDisplaySet", ProDrawingViewDisplaySet(drawing, view, &display));
}

void GeneralView::Make() {
  Pro3dPnt position = {point_.x, point_.y, 0};
  Matrix orientation = orientation_;
  view_ = nullptr;
  status_ = ProDrawingGeneralviewCreate(drawing_, solid_, kFirstSheet, PRO_B_FALSE, nullptr,
                                        position, kTrueSize, orientation.rows, &view_);
  if (Ok(status_) && view_ == nullptr) status_ = PRO_TK_GENERAL_ERROR;
  LogStatus("ProDrawingGeneralviewCreate", status_);
  if (!Ok(status_)) view_ = nullptr;
}

void GeneralView::Turn(SheetAxis axis, double degrees) {
  if (view_ == nullptr) return;
  const SheetAxisRow& row = kSheetAxes[static_cast<int>(axis)];
  std::wstring reference = row.reference;
  LogStatus(
      "ProDrawingViewOrientationFromAngleSet",
      ProDrawingViewOrientationFromAngleSet(drawing_, view_, reference.data(), nullptr, degrees));
  RegenerateView(drawing_, view_);
  const auto shown = Shown();
  for (const double either : {degrees, -degrees}) {
    const Matrix wanted = Turned(orientation_, row.axis, either);
    if (!shown || !SameRotation(*shown, wanted)) continue;
    orientation_ = wanted;
    return;
  }
  LogEvent("the view was not turned as wanted: it is made anew");
  MakeAnew(Turned(orientation_, row.axis, degrees));
}

void GeneralView::ReadOrientation() {
  if (const auto shown = Shown()) orientation_ = *shown;
}

std::optional<Matrix> GeneralView::Shown() const {
  Matrix shown;
  const ProError status = ProDrawingViewTransformGet(drawing_, view_, PRO_B_TRUE, shown.rows);
  LogStatus("ProDrawingViewTransformGet", status);
  return Ok(status) ? Normalised(shown) : std::nullopt;
}

void GeneralView::MakeAnew(const Matrix& orientation) {
  const ProError status = ProDrawingViewDelete(drawing_, view_, PRO_B_FALSE);
  LogStatus("ProDrawingViewDelete", status);
  orientation_ = orientation;
  if (!Ok(status)) return;
  Make();
  if (view_ != nullptr) RegenerateView(drawing_, view_);
}

}  // namespace qm
