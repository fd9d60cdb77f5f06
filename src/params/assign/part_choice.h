// The parts that a property from a file is given to: the current part itself, what is preselected
// in an assembly, or all that lies in it.
#pragma once

#include <optional>
#include <vector>

#include "frame/models/component_list.h"

namespace qm {

// Which parts, and what the user reads where there are none. Null: what stands for the selected
// assemblies is said of the whole one, too.
struct PartKind {
  ComponentKind components;          // kParts or kSheetMetal
  const wchar_t* none_below;         // no such part below a selected assembly
  const wchar_t* unreadable_below;   // a selected assembly cannot be visited
  const wchar_t* none_at_all;        // none in the whole assembly
  const wchar_t* unreadable_at_all;  // the whole assembly cannot be visited
};

struct PartChoice {
  std::vector<ProMdl> parts;         // each once, in the order in which they were chosen
  bool in_assembly = false;          // reached through one
  const wchar_t* refusal = nullptr;  // where the choice ends: shown when these parts are done
  long long left_out = 0;            // selected items and components that cannot be read
};

// Nothing when the current model is neither a part nor an assembly.
std::optional<PartChoice> ChooseParts(const PartKind& kind);

}  // namespace qm
