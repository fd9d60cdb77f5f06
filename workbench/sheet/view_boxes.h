// Components as boxes: where they lie on the sheet, and which of them is in front.
#pragma once

#include <vector>

#include "workbench/session/model.h"
#include "workbench/sheet/sheet_picture.h"

namespace wb {

// The box around a part's surfaces, placed in the model that a view shows.
struct PlacedBox {
  Box box;
  Placement placement = kIdentityPlacement;
};

// One for each shown component at any level that has surfaces; of a huge assembly the first ones.
std::vector<PlacedBox> BoxesOf(const Model& model);

// Puts into the picture what a view draws of the boxes, `placement` leading from the model to the
// sheet. Of boxes that cover each other to the line the front one is drawn, and of too many the
// largest.
void DrawBoxes(const std::vector<PlacedBox>& boxes, const Placement& placement, ViewPicture& view);

}  // namespace wb
