// Features of a solid: the visit, status and type; components and their models.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

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
