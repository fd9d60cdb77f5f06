// QmUpdateMainViewScale: the main view takes the scale of its sheet.
#include "drawing/change/update_main_view_scale.h"

#include "drawing/change/main_view_scale.h"
#include "toolkit/drawing_view.h"

namespace qm {

ProError QmUpdateMainViewScale() {
  return AlignScales([](const MainViewScales& scales) {
    return ProDrawingViewScaleSet(scales.drawing, scales.view, scales.of_sheet);
  });
}

}  // namespace qm
