// The models that a batch command works on: each model once, of the class chosen in its dialog.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "frame/models/current_assembly.h"

namespace qm {

struct TargetList {
  int component_count = 0;     // components collected, repeated placements included
  std::vector<ProMdl> models;  // sorted by handle, each once
  long long left_out = 0;      // components that could not be collected
};

// Collects the targets under `top`. `class_name` is the name of a radio button: "AsmAndPart" (every
// component and `top`), "Part", "Asm" (subassemblies and `top`) or "Smt"; any other collects
// nothing, and so does a `top` that is no assembly. `top` is a target even when nothing was
// collected: callers look at `component_count`. Nothing only when the array of components cannot be
// allocated.
std::optional<TargetList> CollectTargets(const CurrentModel& top, std::string_view class_name);

}  // namespace qm
