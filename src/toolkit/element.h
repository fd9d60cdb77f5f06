// Element trees, which tell the host what feature to make, and features made of them.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/selection.h"
#include "toolkit/types.h"

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
