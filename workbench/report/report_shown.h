// What the user saw besides dialogs, drawn for the report: message boxes and drawing sheets.
#pragma once

#include <string>

#include "workbench/report/run_record.h"

namespace wb {

// A little box with caption bar, icon by style, text and buttons; `pressed` is the id of the button
// that the user pressed, 0 when unknown.
std::string DrawMessageBox(const MessageBox& box, int pressed);

// The current model as a picture, before and after the command where it looks different.
std::string DrawScenes(const CommandRecord& command);

// The sheets of a drawing as inline SVG, those that a command changed before and after it.
std::string DrawSheets(const DrawingPicture& drawing);

}  // namespace wb
