// New components at the origin of an assembly.
#pragma once

#include <optional>

#include "toolkit/component.h"

namespace qm {

// Puts the model into the assembly, its axes on the assembly's. Nothing, after a line in the run
// log, where the host does not take it.
std::optional<ProAsmcomp> AssembleAtOrigin(ProAssembly assembly, ProSolid model);

// Lays the first coordinate system of the component's model onto the assembly's first one, in the
// host's order. Where one of the two has none, the user reads so and the component stays where it
// is: false. What fails beyond that is only logged.
bool ConstrainByCsys(ProAssembly assembly, ProAsmcomp component, ProSolid model,
                     const wchar_t* no_csys_in_model);

// The message for an assembly's or part's own template without one.
inline constexpr wchar_t kNoCsysInPartTemplate[] = L"\t零件模板无坐标系,无法缺省装配新零件\t";

}  // namespace qm
