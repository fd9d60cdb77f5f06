// Component paths, places and the removal of constraints, and the hide state of model items.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef int ProIdTable[PRO_MAX_ASSEM_LEVEL];

// The way from an assembly down to a component: feature ids, one a level.
typedef struct {
  ProSolid owner;
  ProIdTable comp_id_table;
  int table_num;
} ProAsmcomppath;
static_assert(sizeof(ProAsmcomppath) == 112);

PRO_FUNCTION(ProError, ProAsmcomppathInit, ProSolid root, ProIdTable ids, int table_size,
             ProAsmcomppath* path);
PRO_FUNCTION(ProError, ProAsmcomppathMdlGet, ProAsmcomppath* path, ProMdl* model);

// The component's place in its own assembly.
PRO_FUNCTION(ProError, ProAsmcompPositionGet, ProAsmcomp* component, ProMatrix position);
// Counted from 0; those behind it move down, so that an index beyond the rest fails.
PRO_FUNCTION(ProError, ProAsmcompConstrRemove, ProAsmcomp* component, int index);
// Its placement alone.
PRO_FUNCTION(ProError, ProAsmcompRegenerate, ProAsmcomp* component, ProBoolean update_soft);

PRO_FUNCTION(ProError, ProModelitemIsHidden, ProModelitem* item, ProBoolean* is_hidden);
PRO_FUNCTION(ProError, ProModelitemHide, ProModelitem* item);
PRO_FUNCTION(ProError, ProModelitemUnhide, ProModelitem* item);
