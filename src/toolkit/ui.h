// Dialogs loaded from resource files, and their components.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef void (*ProUIAction)(char* dialog, char* component, ProAppData data) QM_CALLBACK;

PRO_FUNCTION(ProError, ProUIDialogCreate, const char* dialog, const char* resource);
PRO_FUNCTION(ProError, ProUIDialogActivate, const char* dialog, int* exit_status);
PRO_FUNCTION(ProError, ProUIDialogDestroy, const char* dialog);
PRO_FUNCTION(ProError, ProUIDialogExit, const char* dialog, int exit_status);
PRO_FUNCTION(ProError, ProUIDialogCloseActionSet, const char* dialog, ProUIAction action,
             ProAppData data);

PRO_FUNCTION(ProError, ProUIPushbuttonActivateActionSet, const char* dialog, const char* component,
             ProUIAction action, ProAppData data);

// Names come as an array of narrow texts that ProStringarrayFree frees.
PRO_FUNCTION(ProError, ProUIRadiogroupSelectednamesSet, const char* dialog, const char* component,
             int count, char** names);
PRO_FUNCTION(ProError, ProUIRadiogroupSelectednamesGet, const char* dialog, const char* component,
             int* count, char*** names);

// Wide texts that the host returns are freed with ProWstringFree.
PRO_FUNCTION(ProError, ProUIInputpanelValueSet, const char* dialog, const char* component,
             wchar_t* value);
PRO_FUNCTION(ProError, ProUIInputpanelValueGet, const char* dialog, const char* component,
             wchar_t** value);

// The user goes into the field.
PRO_FUNCTION(ProError, ProUIInputpanelFocusinActionSet, const char* dialog, const char* component,
             ProUIAction action, ProAppData data);

PRO_FUNCTION(ProError, ProUIOptionmenuValueSet, const char* dialog, const char* component,
             wchar_t* value);
PRO_FUNCTION(ProError, ProUIOptionmenuValueGet, const char* dialog, const char* component,
             wchar_t** value);

PRO_FUNCTION(ProError, ProUICheckbuttonGetState, const char* dialog, const char* component,
             ProBoolean* state);
PRO_FUNCTION(ProError, ProUICheckbuttonSet, const char* dialog, const char* component);
PRO_FUNCTION(ProError, ProUICheckbuttonUnset, const char* dialog, const char* component);
