// Models in session: current model, identity, retrieval, display.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// Where a model's file lies. The order of the texts in it is not certain, so that this is only room
// for any of them, and more; zero it before a call fills it.
typedef struct {
  wchar_t texts[2048];
} ProMdldata;

PRO_FUNCTION(ProError, ProMdlCurrentGet, ProMdl* model);
PRO_FUNCTION(ProError, ProMdlTypeGet, ProMdl model, ProMdlType* type);
PRO_FUNCTION(ProError, ProMdlSubtypeGet, ProMdl model, ProMdlsubtype* subtype);
PRO_FUNCTION(ProError, ProMdlNameGet, ProMdl model, ProName name);
PRO_FUNCTION(ProError, ProMdlDataGet, ProMdl model, ProMdldata* data);
// Full path of the file that the model came from.
PRO_FUNCTION(ProError, ProMdlOriginGet, ProMdl model, ProPath origin);
PRO_FUNCTION(ProError, ProMdlToModelitem, ProMdl model, ProModelitem* item);
PRO_FUNCTION(ProError, ProModelitemMdlGet, ProModelitem* item, ProMdl* model);
// By name, or by the full path of its file.
PRO_FUNCTION(ProError, ProMdlRetrieve, ProFamilyName name, ProMdlType type, ProMdl* model);
PRO_FUNCTION(ProError, ProMdlDisplay, ProMdl model);
// The window that shows it; 0 is one.
PRO_FUNCTION(ProError, ProMdlWindowGet, ProMdl model, int* window);
PRO_FUNCTION(ProError, ProMdlSave, ProMdl model);
// In session and on disk. Users of the model keep pointing at it; their files know the new name
// only once they are saved.
PRO_FUNCTION(ProError, ProMdlRename, ProMdl model, ProName new_name);
// Out of session, perhaps only when the host has control again; the handle is dead at once.
PRO_FUNCTION(ProError, ProMdlErase, ProMdl model);
// An empty part or assembly, in session alone.
PRO_FUNCTION(ProError, ProSolidCreate, ProName name, ProType type, ProSolid* solid);
// Out of session with all that no window shows and no shown model needs: handles to them die.
PRO_FUNCTION(ProError, ProMdlEraseNotDisplayed);
PRO_FUNCTION(ProError, ProMdlIsSkeleton, ProMdl model, ProBoolean* is_skeleton);
PRO_FUNCTION(ProError, ProMfgAssemGet, ProMfg mfg, ProAssembly* assembly);
