// How the copy of a component is named.
#pragma once

#include <optional>
#include <string_view>

#include "assembly/new_model/new_name_rules.h"

namespace qm {

enum class CloneMode {
  kByComponent,  // after the copied model
  kByAssembly,   // after the assembly
  kByUser,       // as typed
};

// The mode by the word of the settings, whatever its case and blanks; nothing for any other text.
std::optional<CloneMode> CloneModeOf(std::wstring_view setting);

// After the copied model. Deliberately a name is probed as a part's, also that of a subassembly:
// one that an assembly has is proposed, and then refused by the host.
NewNaming NamingAfterComponent(std::wstring_view source);

}  // namespace qm
