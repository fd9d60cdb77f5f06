// The yardstick of `workbench bench`: a plain visitor inside the workbench itself that makes the
// same host calls as a command and keeps nothing but what they need.
#pragma once

#include "workbench/host/host.h"

namespace wb {

// What is done to the components that were collected.
enum class BenchWork {
  kCollect,    // nothing
  kShow,       // unhide each
  kReverse,    // parts: ask, then hide or unhide; assemblies: unhide
  kParameter,  // create one parameter in each model
};

// Name of the parameter that kParameter creates; it must not be there yet.
inline constexpr char kBenchParameter[] = "QM_BENCH";

struct WalkTaken {
  double seconds = 0;
  long calls = 0;
};
// Visits level by level, every occurrence anew, with an explicit list of what is still to visit.
// Throws std::runtime_error when a host call fails.
WalkTaken BareWalk(const Model& top, BenchWork work);

// The part that a walk through the assembly meets after all others: whoever looks for it asks each
// of them. Null: there is none.
Model* LastPart(Model& top);

}  // namespace wb
