// Models in session: current model, identity, retrieval, display.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

// Where a model's file lies. The lengths of the leading fields are as documented for this release;
// the trailing reserve keeps a longer record of the host inside our buffer.
typedef struct {
  wchar_t host[PRO_NAME_SIZE];
  wchar_t device[PRO_NAME_SIZE];
  wchar_t path[PRO_PATH_SIZE];
  ProName name;
  ProMdlExtension type;
  int version;
  wchar_t reserve[PRO_PATH_SIZE];
} ProMdldata;

PRO_FUNCTION(ProError, ProMdlCurrentGet, ProMdl* model);
PRO_FUNCTION(ProError, ProMdlTypeGet, ProMdl model, ProMdlType* type);
PRO_FUNCTION(ProError, ProMdlSubtypeGet, ProMdl model, ProMdlsubtype* subtype);
PRO_FUNCTION(ProError, ProMdlNameGet, ProMdl model, ProName name);
PRO_FUNCTION(ProError, ProMdlDataGet, ProMdl model, ProMdldata* data);
PRO_FUNCTION(ProError, ProMdlToModelitem, ProMdl model, ProModelitem* item);
PRO_FUNCTION(ProError, ProModelitemMdlGet, ProModelitem* item, ProMdl* model);
PRO_FUNCTION(ProError, ProMdlRetrieve, ProFamilyName name, ProMdlType type, ProMdl* model);
PRO_FUNCTION(ProError, ProMdlDisplay, ProMdl model);
PRO_FUNCTION(ProError, ProMdlIsSkeleton, ProMdl model, ProBoolean* is_skeleton);
PRO_FUNCTION(ProError, ProMfgAssemGet, ProMfg mfg, ProAssembly* assembly);
