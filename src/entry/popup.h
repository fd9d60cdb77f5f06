// The entries in the right-button popup of a selected component.
#pragma once

namespace qm {

// The first popup the host announces sets the entries' commands up; every later one of a selected
// object gets the entries.
void ListenForPopup();

}  // namespace qm
