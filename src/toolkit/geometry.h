// Surfaces of a solid and their extents, coordinate systems, the box around a solid.
#pragma once

#include "toolkit/host_function.h"
#include "toolkit/types.h"

typedef struct geom_surface_handle* ProSurface;
typedef struct csys_handle* ProCsys;

// Leading fields of a surface's data; the shape data behind them is not used.
typedef struct {
  ProSrftype type;
  ProUvParam uv_min;
  ProUvParam uv_max;
  Pro3dPnt xyz_min;
  Pro3dPnt xyz_max;
  ProSurfaceOrient orient;
} ProSurfacedata;

typedef struct {
  ProType obj_type;
  union {
    ProSurfacedata* p_surface_data;
    void* p_other_data;
  } data;
} ProGeomitemdata;
static_assert(sizeof(ProGeomitemdata) == 16);

typedef ProError (*ProSurfaceFilterAction)(ProSurface surface, ProAppData data) QM_CALLBACK;
typedef ProError (*ProSurfaceVisitAction)(ProSurface surface, ProError filter_status,
                                          ProAppData data) QM_CALLBACK;

// Lowest and highest corner in the model's own frame, as of its last regeneration.
PRO_FUNCTION(ProError, ProSolidOutlineGet, ProSolid solid, Pro3dPnt outline[2]);

PRO_FUNCTION(ProError, ProSolidSurfaceVisit, ProSolid solid, ProSurfaceVisitAction action,
             ProSurfaceFilterAction filter, ProAppData data);
// The furthest point of the surface in a direction, in the model's own frame and units.
PRO_FUNCTION(ProError, ProSurfaceExtremesEval, ProSurface surface, ProVector direction,
             Pro3dPnt extreme);
PRO_FUNCTION(ProError, ProSurfaceToGeomitem, ProSolid owner, ProSurface surface, ProGeomitem* item);
PRO_FUNCTION(ProError, ProSurfaceDataGet, ProSurface surface, ProGeomitemdata** data);
PRO_FUNCTION(ProError, ProGeomitemdataFree, ProGeomitemdata** data);

typedef ProError (*ProCsysFilterAction)(ProCsys csys, ProAppData data) QM_CALLBACK;
typedef ProError (*ProCsysVisitAction)(ProCsys csys, ProError filter_status,
                                       ProAppData data) QM_CALLBACK;

// Those of the solid itself, without those of its components.
PRO_FUNCTION(ProError, ProSolidCsysVisit, ProSolid solid, ProCsysVisitAction action,
             ProCsysFilterAction filter, ProAppData data);
PRO_FUNCTION(ProError, ProCsysToGeomitem, ProSolid owner, ProCsys csys, ProGeomitem* item);
