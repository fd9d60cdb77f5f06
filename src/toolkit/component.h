// Components put into assemblies, and the constraints that place them.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/selection.h"
#include "toolkit/types.h"

typedef struct pro_asm_constraint* ProAsmcompconstraint;

// Adds a component without constraints; PRO_TK_BAD_CONTEXT when the assembly would hold itself.
// `component` is its feature in the assembly.
PRO_FUNCTION(ProError, ProAsmcompAssemble, ProAssembly assembly, ProSolid model,
             ProMatrix placement, ProAsmcomp* component);
// The host's own dialog, back when the user is done with it.
PRO_FUNCTION(ProError, ProAsmcompConstrRedefUI, ProAsmcomp* component);

// An array whose elements are freed one by one before it; any failure: there are none.
PRO_FUNCTION(ProError, ProAsmcompConstraintsGet, ProAsmcomp* component,
             ProAsmcompconstraint** constraints);
// Replaces all constraints by those of the array, which stays the caller's. `path` may be null.
PRO_FUNCTION(ProError, ProAsmcompConstraintsSet, ProAsmcomppath* path, ProAsmcomp* component,
             ProAsmcompconstraint* constraints);

PRO_FUNCTION(ProError, ProAsmcompconstraintAlloc, ProAsmcompconstraint* constraint);
PRO_FUNCTION(ProError, ProAsmcompconstraintFree, ProAsmcompconstraint constraint);
PRO_FUNCTION(ProError, ProAsmcompconstraintTypeSet, ProAsmcompconstraint constraint,
             ProAsmcompConstrType type);
// In the assembly, by a path from it, of no levels for the assembly itself. Selections are kept
// until the constraints are set.
PRO_FUNCTION(ProError, ProAsmcompconstraintAsmreferenceSet, ProAsmcompconstraint constraint,
             ProSelection reference, ProDatumside side);
// In the component's own model, without a path.
PRO_FUNCTION(ProError, ProAsmcompconstraintCompreferenceSet, ProAsmcompconstraint constraint,
             ProSelection reference, ProDatumside side);
