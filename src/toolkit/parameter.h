// Parameters of model items.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef union {
  double d_val;
  int i_val;
  short l_val;
  ProLine s_val;
} ProParamvalueValue;

typedef struct {
  ProParamvalueType type;
  ProParamvalueValue value;
} ProParamvalue;
static_assert(sizeof(ProParamvalue) == 176);

typedef struct {
  ProParamfrom type;
  union {
    ProModelitem item;
  } who;
} ProParamowner;

// The size of the host's record is not certain: the reserve keeps a longer one inside our buffer.
typedef struct {
  ProType type;
  ProName id;
  ProParamowner owner;
  char reserve[64];
} ProParameter;

PRO_FUNCTION(ProError, ProParameterCreate, ProModelitem* owner, ProName name, ProParamvalue* value,
             ProParameter* parameter);
PRO_FUNCTION(ProError, ProParameterInit, ProModelitem* owner, ProName name,
             ProParameter* parameter);
PRO_FUNCTION(ProError, ProParameterValueGet, ProParameter* parameter, ProParamvalue* value);
PRO_FUNCTION(ProError, ProParameterValueSet, ProParameter* parameter, ProParamvalue* value);
PRO_FUNCTION(ProError, ProParameterDelete, ProParameter* parameter);
