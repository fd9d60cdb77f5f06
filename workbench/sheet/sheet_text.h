// Texts of a sheet as one reads them: dimensions with their tolerances, and the host's symbols.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/sheet/sheet_picture.h"

namespace wb {

// Up to three decimals, without zeros at the end.
std::string LengthText(double value);

// Letters of the host's symbol font, which stand between two control characters, as signs that
// other fonts have as well.
std::string WithSymbols(std::string_view text);

std::vector<TextLine> LinesOf(const SheetNote& note);
std::vector<TextLine> LinesOf(const Dimension& dimension);

}  // namespace wb
