// How much room things take on a sheet.
#pragma once

#include <string>

#include "workbench/sheet/sheet_picture.h"

namespace wb {

// Of the letters of a limit, as part of those of its line.
inline constexpr double kLimitLetters = 0.66;

// Widths of texts in letters, Chinese ones being as wide as high.
double WidthOf(const std::string& text);
double WidthOf(const TextLine& line);

Outline AreaOf(const TablePicture& table);
Outline AreaOf(const std::vector<ShownFace>& faces);

// Whether a box that is drawn later may lie before it.
bool IsCoveredInPart(const ViewPicture& view, std::size_t box);

// Beyond it a thing is not on the desk, and the sheet would be a dot.
bool IsNear(const Outline& area);

}  // namespace wb
