// The drawing format on the sheets of a drawing.
#pragma once

#include <string>

#include "toolkit/types.h"

namespace qm {

struct DrawingFile {
  const std::wstring& folder;  // ends with a separator; empty when it is not known
  const std::wstring& name;
};

// Puts `format` (null: none was found) on every sheet in the place of the one that is there, and
// saves the drawing. The tables of the old format go first, and what could not be placed is saved
// all the same; the run log says for each drawing what came of it. A drawing without views is left
// alone. False when a sheet is without the format.
bool ReplaceFormats(ProDrawing drawing, const DrawingFile& file, ProMdl format);

}  // namespace qm
