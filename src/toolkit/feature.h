// Features of a solid: the visit, status and type; components and their models.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef int ProFeattype;
enum {
  PRO_FEAT_COMPONENT = 1000,
  // Further feature types that the show-all command accepts on the top level.
  PRO_FEAT_TOP_LEVEL_1104 = 1104,
  PRO_FEAT_TOP_LEVEL_1232 = 1232,
};

typedef enum {
  PRO_FEAT_INVALID = -1,
  PRO_FEAT_ACTIVE = 0,
  PRO_FEAT_INACTIVE = 1,
  PRO_FEAT_FAMTAB_SUPPRESSED = 2,
  PRO_FEAT_SIMP_REP_SUPPRESSED = 3,
  PRO_FEAT_PROG_SUPPRESSED = 4,
  PRO_FEAT_SUPPRESSED = 5,
  PRO_FEAT_UNREGENERATED = 6,
} ProFeatStatus;

// Visit callbacks. A filter answers PRO_TK_CONTINUE to skip an item; an action ends the visit with
// any answer but PRO_TK_NO_ERROR, and the visit then returns that answer.
typedef ProError (*ProFeatureFilterAction)(ProFeature* feature, ProAppData data) QM_CALLBACK;
typedef ProError (*ProFeatureVisitAction)(ProFeature* feature, ProError filter_status,
                                          ProAppData data) QM_CALLBACK;

PRO_FUNCTION(ProError, ProSolidFeatVisit, ProSolid solid, ProFeatureVisitAction action,
             ProFeatureFilterAction filter, ProAppData data);
PRO_FUNCTION(ProError, ProFeatureStatusflagsGet, ProFeature* feature, int* flags);
PRO_FUNCTION(ProError, ProFeatureTypeGet, ProFeature* feature, ProFeattype* type);
PRO_FUNCTION(ProError, ProFeatureStatusGet, ProFeature* feature, ProFeatStatus* status);
PRO_FUNCTION(ProError, ProFeatureVisibilityGet, ProFeature* feature, ProBoolean* is_visible);
PRO_FUNCTION(ProError, ProAsmcompMdlGet, ProAsmcomp* component, ProMdl* model);
