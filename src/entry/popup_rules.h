// Which preselected items the entries of the right-button popup are offered for.
#pragma once

namespace qm {

// Isolate, hide-reverse and show-all: an assembly or a part.
bool DisplayEntriesOffered(int first_item_type);

// Name copy and quick rename: models and the items on them that stand for a model.
bool NameEntriesOffered(int item_type);

}  // namespace qm
