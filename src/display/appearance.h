// Appearances of models and surfaces through the host. What does not work is logged.
#pragma once

#include <optional>

#include "display/appearance_rules.h"
#include "toolkit/properties.h"

namespace qm {

// The record of our own with these numbers.
ProSurfaceAppearanceProps AppearanceWith(const AppearanceNumbers& numbers);

// The item's own appearance, or the host's grey where it has none. All else in the record is as the
// host gave it, so that it can be written back. Nothing when it cannot be read.
std::optional<ProSurfaceAppearanceProps> ReadAppearance(ProModelitem item);

bool WriteAppearance(ProModelitem item, ProSurfaceAppearanceProps appearance);
// The item looks like what it belongs to again.
bool ClearAppearance(ProModelitem item);

// The model as an item; nothing when the host does not tell.
std::optional<ProModelitem> ItemOfModel(ProMdl model);

}  // namespace qm
