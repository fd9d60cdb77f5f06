// Assemblies that would hold themselves, directly or through others. The real host lets nobody make
// one; tests of the plug-in may make one in memory.
#pragma once

#include <string>
#include <vector>

#include "workbench/session/model.h"

namespace wb {

// A model under one of `tops` that holds itself, then each model on the way, and itself again;
// empty: there is none.
std::vector<const Model*> FindCycle(const std::vector<const Model*>& tops);

// "pump.asm > rotor.asm > pump.asm"
std::string CycleText(const std::vector<const Model*>& cycle);

}  // namespace wb
