// Tables of dialogs, and the few component calls that dialogs with tables need besides.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"
#include "toolkit/ui.h"

// Colour numbers of the host's user interface.
typedef int ProUIColorType;

// Rows and columns are known by narrow names. A null or empty neighbour inserts at the start;
// otherwise the new ones come after it.
PRO_FUNCTION(ProError, ProUITableRowsInsert, const char* dialog, const char* component,
             const char* neighbour, int count, char** names);
PRO_FUNCTION(ProError, ProUITableRowsDelete, const char* dialog, const char* component, int count,
             char** names);
PRO_FUNCTION(ProError, ProUITableRownamesGet, const char* dialog, const char* component, int* count,
             char*** names);
// Makes these the rows.
PRO_FUNCTION(ProError, ProUITableRownamesSet, const char* dialog, const char* component, int count,
             char** names);
PRO_FUNCTION(ProError, ProUITableColumnsInsert, const char* dialog, const char* component,
             const char* neighbour, int count, char** names);
PRO_FUNCTION(ProError, ProUITableColumnsDelete, const char* dialog, const char* component,
             int count, char** names);
PRO_FUNCTION(ProError, ProUITableColumnnamesGet, const char* dialog, const char* component,
             int* count, char*** names);
PRO_FUNCTION(ProError, ProUITableColumnlabelsSet, const char* dialog, const char* component,
             int count, wchar_t** labels);
// Wide texts that ProWstringarrayFree frees.
PRO_FUNCTION(ProError, ProUITableColumnlabelsGet, const char* dialog, const char* component,
             int* count, wchar_t*** labels);
PRO_FUNCTION(ProError, ProUITableRowlabelsGet, const char* dialog, const char* component,
             int* count, wchar_t*** labels);
PRO_FUNCTION(ProError, ProUITableCellLabelSet, const char* dialog, const char* component,
             const char* row, const char* column, wchar_t* label);
PRO_FUNCTION(ProError, ProUITableCellLabelGet, const char* dialog, const char* component,
             const char* row, const char* column, wchar_t** label);
PRO_FUNCTION(ProError, ProUITableCellBackgroundColorSet, const char* dialog, const char* component,
             const char* row, const char* column, ProUIColorType color);
PRO_FUNCTION(ProError, ProUITableCellBackgroundColorGet, const char* dialog, const char* component,
             const char* row, const char* column, ProUIColorType* color);
// Names of the selected rows, freed with ProStringarrayFree.
PRO_FUNCTION(ProError, ProUITableSelectednamesGet, const char* dialog, const char* component,
             int* count, char*** names);
// Count 0 with null selects none.
PRO_FUNCTION(ProError, ProUITableSelectednamesSet, const char* dialog, const char* component,
             int count, char** names);
// How many rows and columns the user can select; rows that are selected may be lost.
PRO_FUNCTION(ProError, ProUITableSelectionpolicySet, const char* dialog, const char* component,
             ProUISelectionpolicy policy);
PRO_FUNCTION(ProError, ProUITableColumnselectionpolicySet, const char* dialog,
             const char* component, ProUISelectionpolicy policy);
// A cell takes the focus.
PRO_FUNCTION(ProError, ProUITableArmActionSet, const char* dialog, const char* component,
             ProUIAction action, ProAppData data);
// Names that ProStringFree frees.
PRO_FUNCTION(ProError, ProUITableFocusCellGet, const char* dialog, const char* component,
             char** row, char** column);
// A copy of a component of the dialog stands in the cell, under a name of its own, and goes with
// its row.
PRO_FUNCTION(ProError, ProUITableCellComponentCopy, const char* dialog, const char* component,
             const char* row, const char* column, const char* source, const char* new_name);
PRO_FUNCTION(ProError, ProUITableCellComponentDelete, const char* dialog, const char* component,
             const char* row, const char* column);
// Double-click on a row.
PRO_FUNCTION(ProError, ProUITableActivateActionSet, const char* dialog, const char* component,
             ProUIAction action, ProAppData data);

PRO_FUNCTION(ProError, ProUIRadiogroupSelectActionSet, const char* dialog, const char* component,
             ProUIAction action, ProAppData data);
PRO_FUNCTION(ProError, ProUIOptionmenuEnable, const char* dialog, const char* component);
PRO_FUNCTION(ProError, ProUIOptionmenuDisable, const char* dialog, const char* component);
PRO_FUNCTION(ProError, ProUIDrawingareaPostmanagenotifyActionSet, const char* dialog,
             const char* component, ProUIAction action, ProAppData data);
PRO_FUNCTION(ProError, ProUIDialogAboveactivewindowSet, const char* dialog, ProBoolean above);

PRO_FUNCTION(ProError, ProWstringarrayFree, wchar_t** texts, int count);
