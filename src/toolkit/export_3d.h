// Files of other programs, written of the shapes of parts and assemblies.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/selection.h"
#include "toolkit/types.h"

typedef struct pro_output_brep* ProOutputBrepRepresentation;
typedef struct pro_output_inclusion* ProOutputInclusion;
typedef struct pro_output_layers* ProOutputLayerOptions;

PRO_FUNCTION(ProError, ProOutputBrepRepresentationAlloc, ProOutputBrepRepresentation* brep);
PRO_FUNCTION(ProError, ProOutputBrepRepresentationFree, ProOutputBrepRepresentation brep);
PRO_FUNCTION(ProError, ProOutputBrepRepresentationFlagsSet, ProOutputBrepRepresentation brep,
             ProBoolean as_wireframe, ProBoolean as_surfaces, ProBoolean as_solid,
             ProBoolean as_quilts);
// Null: the model's own coordinate system, nothing further included, no layers. The numbers of the
// types are not those of ProOutputFileWrite.
PRO_FUNCTION(ProError, ProIntf3DFileWrite, ProSolid solid, int type, ProPath file,
             ProOutputAssemblyConfiguration configuration, ProSelection csys,
             ProOutputBrepRepresentation brep, ProOutputInclusion inclusion,
             ProOutputLayerOptions layers);
