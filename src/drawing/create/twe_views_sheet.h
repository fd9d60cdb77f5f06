// Six or twelve views on the sheet of a new drawing.
#pragma once

#include <string>

#include "frame/geometry/matrix_rules.h"
#include "toolkit/types.h"

namespace qm {

// What the user chose in the dialog, by the names of its buttons.
struct TweViewsWishes {
  std::string direction;  // of the main view: "main-h" or "main-v"
  std::string views;      // "six-hidden", "six-nohidden" or "twelve"
  bool exports = false;   // to the desktop
};

// Makes the views of `model` on the drawing's first sheet, its main view as `orientation` says.
// When there can be no main view the user reads why, and the status says it too.
ProError DrawTweViews(ProDrawing drawing, ProMdl model, const Matrix& orientation,
                      const TweViewsWishes& wishes);

}  // namespace qm
