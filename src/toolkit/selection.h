// Selections: interactive picking, the selection buffer, and what a selection points at.
#pragma once

#include "toolkit/assembly.h"
#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef struct pro_selection_handle* ProSelection;
typedef struct pro_selection_environment* ProSelectionEnv;

typedef struct {
  ProSelectionEnvAttr attribute;
  int attribute_value;
} ProSelectionEnvOption;

typedef ProError (*ProSelPreFilter)(ProSelection selection, ProAppData data) QM_CALLBACK;
typedef ProError (*ProSelPostSelact)(ProSelection selection, ProBoolean as_pick,
                                     ProAppData data) QM_CALLBACK;
typedef ProError (*ProSelPostFilter)(ProSelection selection, ProAppData data) QM_CALLBACK;
typedef struct {
  ProSelPreFilter pre_filter;
  ProSelPostFilter post_filter;
  ProSelPostSelact post_selact;
  ProAppData app_data;
} ProSelFunctions;
typedef struct sel_access_option* ProSelAppAction;

// The array of selections belongs to the host and lives until the next call.
PRO_FUNCTION(ProError, ProSelect, const char* filter, int max_count, ProSelection* initial,
             ProSelFunctions* functions, ProSelectionEnv environment, ProSelAppAction* app_action,
             ProSelection** selections, int* count);
// `options` is a ProArray.
PRO_FUNCTION(ProError, ProSelectionEnvAlloc, ProSelectionEnvOption* options,
             ProSelectionEnv* environment);
PRO_FUNCTION(ProError, ProSelectionEnvFree, ProSelectionEnv environment);

// The copies in the array are the caller's: ProSelectionarrayFree frees both.
PRO_FUNCTION(ProError, ProSelbufferSelectionsGet, ProSelection** selections);
PRO_FUNCTION(ProError, ProSelectionarrayFree, ProSelection* selections);
PRO_FUNCTION(ProError, ProSelbufferClear, void);
PRO_FUNCTION(ProError, ProSelbufferSelectionAdd, ProSelection selection);

PRO_FUNCTION(ProError, ProSelectionModelitemGet, ProSelection selection, ProModelitem* item);
PRO_FUNCTION(ProError, ProSelectionAsmcomppathGet, ProSelection selection, ProAsmcomppath* path);

// Copies both; `path` may be null.
PRO_FUNCTION(ProError, ProSelectionAlloc, ProAsmcomppath* path, ProModelitem* item,
             ProSelection* selection);
// Only of one's own, never of those that a pick gives.
PRO_FUNCTION(ProError, ProSelectionFree, ProSelection* selection);
