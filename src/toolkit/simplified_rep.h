// Simplified representations: which components of an assembly are kept and which are left out.
#pragma once

#include "toolkit/assembly.h"
#include "toolkit/host_function.h"
#include "toolkit/types.h"

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
