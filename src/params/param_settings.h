// The fields of the parameter dialog that survive between uses, in "QmParams.ini".
#pragma once

#include "frame/dialogs/stored_fields.h"
#include "frame/settings/config.h"

namespace qm {

inline constexpr StoredField kKeywords = {"InputKeyWords", FieldKind::kInput, kContentKey};
// Those of the two further tools start as the same keywords and are not stored.
inline constexpr StoredField kToolKeywords = {"InputKeyWords2", FieldKind::kInput, kContentKey};
inline constexpr StoredField kOutlineName = {"outlinePname", FieldKind::kInput, kContentKey};
inline constexpr StoredField kSheetSizeName = {"shSizePname", FieldKind::kInput, kContentKey};
inline constexpr StoredField kDecimals = {"QmOutlineNum", FieldKind::kOption, kContentKey};
inline constexpr StoredField kOrder = {"QmOutlineOrder", FieldKind::kCheck, kContentKey};

// Fills the fields; a missing setting empties its field (and leaves the check button alone).
void LoadParamSettings(const DialogView& dialog, StoredFields* fields);

// Writes the fields. One that does not show its setting, or that the host does not tell, keeps its
// stored value. Tells in the message area what came of it.
void SaveParamSettings(const DialogView& dialog, const StoredFields& fields);

}  // namespace qm
