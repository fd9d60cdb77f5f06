// Views on the sheet of a drawing that is being made.
#pragma once

#include <optional>

#include "drawing/create/twe_views_rules.h"
#include "frame/geometry/matrix_rules.h"
#include "toolkit/drawing_view.h"
#include "toolkit/types.h"

namespace qm {

// Outline of a view; nothing, after a line in the log, when the host does not tell.
std::optional<SheetBox> OutlineOf(ProDrawing drawing, ProView view);

void MoveView(ProDrawing drawing, ProView view, SheetPoint by);
void RegenerateView(ProDrawing drawing, ProView view);
// Tangent edges show as in all views of the toolbox; the other fields stay as they are.
void ShowAs(ProDrawing drawing, ProView view, ProDisplayStyle style);

// What a view may be turned about, on the sheet.
enum class SheetAxis { kNormal, kVertical, kHorizontal };

// A view of a model that stands for itself, at its true size, on the first sheet.
class GeneralView {
 public:
  GeneralView(ProDrawing drawing, ProSolid solid, SheetPoint point, const Matrix& orientation)
      : drawing_(drawing), solid_(solid), point_(point), orientation_(orientation) {}

  // Null until it is made, and after a failure.
  ProView view() const { return view_; }
  // Why there is none, as the host said it.
  ProError status() const { return status_; }
  const Matrix& orientation() const { return orientation_; }

  void Make();
  // Turns and regenerates it. A host that turns it otherwise, or not at all, gets the view made
  // anew with the turned matrix.
  void Turn(SheetAxis axis, double degrees);
  // As the sheet shows it, instead of as it was made.
  void ReadOrientation();

 private:
  std::optional<Matrix> Shown() const;
  void MakeAnew(const Matrix& orientation);

  ProDrawing drawing_;
  ProSolid solid_;
  SheetPoint point_;
  Matrix orientation_;
  ProView view_ = nullptr;
  ProError status_ = PRO_TK_GENERAL_ERROR;
};

}  // namespace qm
