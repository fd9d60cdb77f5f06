// Family tables: generic models, their instances, and the cells of instances.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/parameter.h"
#include "toolkit/types.h"

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
