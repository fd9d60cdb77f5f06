// What the commands of the benchmark work on, and the proof that they have worked.
#pragma once

#include <string>

#include "workbench/bench/bench_parts.h"
#include "workbench/host/host.h"

namespace wb {

// Readies the session for the command of a part under `top`: what the command has given to models
// before is gone, and what it is to work on is preselected.
void PrepareWork(Host& host, Model& top, BenchPart part);

// Whether the latest command has given to models what it is there for, where it is a command that
// gives something to models. `units` is the unit system that was asked for.
bool HasWorked(Host& host, Model& top, BenchPart part, const std::string& units);

}  // namespace wb
