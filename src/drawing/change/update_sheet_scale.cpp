// QmUpdateSheetScale: the sheet takes the scale of its main view.
#include "drawing/change/update_sheet_scale.h"

#include "drawing/change/main_view_scale.h"
#include "toolkit/drawing.h"

namespace qm {

ProError QmUpdateSheetScale() {
  return AlignScales([](const MainViewScales& scales) {
    return ProDrawingScaleSet(scales.drawing, scales.solid, scales.sheet, scales.of_view);
  });
}

}  // namespace qm
