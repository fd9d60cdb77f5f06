// Drawings brought up in windows of their own.
#pragma once

#include <optional>
#include <string_view>

#include "toolkit/model.h"

namespace qm {

// A window for the drawing of this name. Nothing when there is none to be had.
std::optional<int> DrawingWindow(std::wstring_view name);

// A drawing that was there: displayed in a window, which becomes the active one.
ProError DisplayDrawing(ProMdl drawing, std::wstring_view name);

// A failure is only logged.
void ActivateWindow(int window);

// The window's drawing becomes the current model, and the window the active one.
ProError MakeCurrent(int window);

}  // namespace qm
