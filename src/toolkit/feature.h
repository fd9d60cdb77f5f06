// Features of a solid: the visit, status and type; components and their models; the element trees
// that tell the host what feature to make.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/selection.h"
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

typedef int ProElemId;
typedef struct pro_element* ProElement;
typedef struct pro_value* ProValue;
typedef struct pro_elempath* ProElempath;

// Zero it before use: whether the longest member stands inside the record is not known.
typedef struct {
  ProValueDataType type;
  union {
    int i;
    double d;
    void* p;
    char* s;
    wchar_t* w;
    ProSelection r;
    double reserve[16];
  } v;
} ProValueData;
static_assert(sizeof(ProValueData) == 136);

typedef struct {
  int err_item_id;
  int err_item_type;
  ProError error;
} ProItemerror;

// The list lies in the host's memory. Its tail is only room.
typedef struct {
  ProItemerror* error_list;
  int error_number;
  char reserve[64];
} ProErrorlist;

// The caller's until it is joined to a tree.
PRO_FUNCTION(ProError, ProElementAlloc, ProElemId id, ProElement* element);
// Frees all that is joined to it as well; only for an element that is joined to none.
PRO_FUNCTION(ProError, ProElementFree, ProElement* element);
// The caller's until it is set in an element.
PRO_FUNCTION(ProError, ProValueAlloc, ProValue* value);
PRO_FUNCTION(ProError, ProValueFree, ProValue value);
// Copies numbers and texts; a selection is kept until the feature is made.
PRO_FUNCTION(ProError, ProValueDataSet, ProValue value, ProValueData* data);
// The element takes the value over.
PRO_FUNCTION(ProError, ProElementValueSet, ProElement element, ProValue value);
// The tree takes the element over, as the last one below `parent` where there is no path.
PRO_FUNCTION(ProError, ProElemtreeElementAdd, ProElement parent, ProElempath path,
             ProElement element);

// `model` selects the model that gets the feature. The tree stays the caller's; any failure: there
// is no feature.
PRO_FUNCTION(ProError, ProFeatureCreate, ProSelection model, ProElement tree,
             ProFeatureCreateOptions* options, int option_count, ProFeature* feature,
             ProErrorlist* errors);
