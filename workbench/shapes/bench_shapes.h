// Assemblies of chosen shape and size, made in memory for `workbench bench`.
#pragma once

#include <span>
#include <string>

#include "workbench/session/session.h"

namespace wb {

// A chain of this many levels is deep enough to show whether anything depends on the stack.
inline constexpr int kDeepestChain = 10000;

struct BenchShape {
  const char* name;
  const char* what;  // in the report
  // Fills the session and gives the top assembly. `occurrences` counts the components of all
  // levels, repeated ones each time, the top assembly itself not.
  Model& (*build)(Session& session, int occurrences);
  int largest;  // 0: no bound
};
std::span<const BenchShape> BenchShapes();
// Null: no such shape.
const BenchShape* FindBenchShape(const std::string& name);

}  // namespace wb
