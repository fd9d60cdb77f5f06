// Components put into assemblies, their constraints, and simplified representations.
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

// --- Simplified representations.

// What a representation is made of; the host's own memory.
typedef struct pro_simprep_data ProSimprepdata;

// Layouts that are not known: zero them, pass them on and never look inside.
typedef struct {
  double reserve[64];
} ProSimprepAction;
typedef struct {
  double reserve[64];
} ProSimprepitem;
typedef struct {
  double reserve[64];
} ProSimprep;

// What happens to components that no item names is the default action.
PRO_FUNCTION(ProError, ProSimprepdataAlloc, ProName name, ProBoolean temporary,
             ProSimprepActionType default_action, ProSimprepdata** data);
PRO_FUNCTION(ProError, ProSimprepdataFree, ProSimprepdata** data);
PRO_FUNCTION(ProError, ProSimprepActionInit, ProSimprepActionType type, ProAppData parameter,
             ProSimprepAction* action);
// `path` are the component ids from the top down to the assembly that has the component `item_id`.
PRO_FUNCTION(ProError, ProSimprepdataitemInit, ProIdTable path, int path_size, int item_id,
             ProSimprepAction* action, ProSimprepitem* item);
PRO_FUNCTION(ProError, ProSimprepdataitemAdd, ProSimprepdata* data, ProSimprepItemType type,
             ProSimprepitem* item);
// The data stays the caller's. PRO_TK_E_FOUND when there is one of this name.
PRO_FUNCTION(ProError, ProSimprepCreate, ProSolid solid, ProSimprepdata* data, ProSimprep* rep);
// By name with the id -1.
PRO_FUNCTION(ProError, ProSimprepInit, ProName name, int id, ProSolid solid, ProSimprep* rep);
// Redisplays nothing.
PRO_FUNCTION(ProError, ProSimprepActivate, ProSolid solid, ProSimprep* rep);
