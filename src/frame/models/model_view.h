// The view in a model's window.
#pragma once

#include <optional>

#include "frame/geometry/matrix_rules.h"
#include "toolkit/model.h"

namespace qm {

// As the host tells it, scale and shift included. Nothing for a model that no window shows.
std::optional<Matrix> ReadView(ProMdl model);
ProError WriteView(ProMdl model, const Matrix& view);
// One that ReadView gave. A host that takes no scaled rows gets them at unit scale.
void RestoreView(ProMdl model, const Matrix& view);

// Turns the view to the nearest orientation along the axes and repaints all windows. Fails, and
// repaints nothing, for a model that no window shows.
ProError SnapView(ProMdl model);

}  // namespace qm
