// Parameters of model items, and family tables.
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

// --- Family tables.

// Layouts that are not known: zero them, pass them on and never look inside.
typedef struct {
  double reserve[64];
} ProFamtable;
typedef struct {
  double reserve[64];
} ProFamtableItem;
typedef struct {
  double reserve[64];
} ProFaminstance;

// The model that an instance comes from: the one right above it, or with PRO_B_FALSE the topmost.
// PRO_TK_E_NOT_FOUND for a model that is no instance.
PRO_FUNCTION(ProError, ProFaminstanceGenericGet, ProMdl instance, ProBoolean immediate,
             ProMdl* generic);
// Also of a model without a table.
PRO_FUNCTION(ProError, ProFamtableInit, ProMdl generic, ProFamtable* table);
// Only fills the record.
PRO_FUNCTION(ProError, ProFaminstanceInit, ProName name, ProFamtable* table,
             ProFaminstance* instance);
// The column of a parameter, whether the table has it or not.
PRO_FUNCTION(ProError, ProParameterToFamtableItem, ProParameter* parameter, ProFamtableItem* item);
// PRO_TK_E_FOUND when the table has the column.
PRO_FUNCTION(ProError, ProFamtableItemAdd, ProFamtable* table, ProFamtableItem* item);
// PRO_TK_E_NOT_FOUND when the table has no such column.
PRO_FUNCTION(ProError, ProFaminstanceValueGet, ProFaminstance* instance, ProFamtableItem* item,
             ProParamvalue* value);
PRO_FUNCTION(ProError, ProFaminstanceValueSet, ProFaminstance* instance, ProFamtableItem* item,
             ProParamvalue* value);
