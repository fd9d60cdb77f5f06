// A sheet of a drawing as a picture: paper, frame, tables, views, dimensions and notes, to scale.
#pragma once

#include <string>

#include "workbench/sheet/sheet_marks.h"
#include "workbench/sheet/sheet_picture.h"

namespace wb {

// An SVG element that needs nothing around it. A millimetre of the sheet is 1 in it; the sheet's
// lower left corner is at (0, height). What differs from `other`, the same sheet at the other
// moment, is marked; null: nothing is. What lies beside the paper is seen as well.
std::string DrawSheet(const SheetPicture& sheet, const SheetPicture* other = nullptr,
                      SheetMoment moment = SheetMoment::kAfter);

// How much of its colours a page shows.
enum class PageInk { kColour, kGrey, kMono };

struct Page {
  std::string svg;   // of the paper alone, which is not drawn, at its true size
  double width = 0;  // in millimetres
  double height = 0;
};
// The sheet as it is printed. `stroked`: letters are lines, and no text.
Page DrawPage(const SheetPicture& sheet, PageInk ink = PageInk::kColour, bool stroked = false);

}  // namespace wb
