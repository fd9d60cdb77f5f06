// Host functions for surfaces of solids and for sheets of drawings.
#include <cstdlib>

#include "workbench/host/loans.h"

namespace wb {
namespace {

ProSurface SurfaceHandle(Host& host, const Box& surface) {
  auto [at, fresh] = host.surface_handles.try_emplace(&surface, nullptr);
  if (fresh) {
    at->second = host.handles.Give(HandleKind::kSurface, const_cast<Box*>(&surface));
  }
  return static_cast<ProSurface>(at->second);
}

// One block: the item's record and, behind it, the surface's.
struct SurfaceRecord {
  ProGeomitemdata item;
  ProSurfacedata surface;
};

SurfaceRecord* NewSurfaceRecord(const Box& box) {
  auto* const record = static_cast<SurfaceRecord*>(std::calloc(1, sizeof(SurfaceRecord)));
  record->item.obj_type = PRO_SURFACE;
  record->item.data.p_surface_data = &record->surface;
  record->surface.type = PRO_SRF_PLANE;
  std::copy(box.min.begin(), box.min.end(), record->surface.xyz_min);
  std::copy(box.max.begin(), box.max.end(), record->surface.xyz_max);
  record->surface.orient = PRO_SURF_ORIENT_OUT;
  return record;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProSolidSurfaceVisit(ProSolid solid, ProSurfaceVisitAction action,
                              ProSurfaceFilterAction filter, ProAppData data) {
  return Crossing("ProSolidSurfaceVisit", solid, action, filter, static_cast<const void*>(data))
      .Run([&](Call& call) {
        const Model& model = call.SolidAt(solid);
        if (action == nullptr) call.Fail("null visit action");
        bool visited = false;
        for (const Box& box : model.surfaces) {
          const ProSurface surface = SurfaceHandle(call.host, box);
          const ProError filtered = filter == nullptr ? PRO_TK_NO_ERROR : filter(surface, data);
          call.CheckStillThere(solid);
          if (filtered == PRO_TK_CONTINUE) continue;
          visited = true;
          const ProError answer = action(surface, filtered, data);
          call.CheckStillThere(solid);
          if (answer != PRO_TK_NO_ERROR) return answer;
        }
        return visited ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
      });
}

ProError ProSurfaceDataGet(ProSurface surface, ProGeomitemdata** data) {
  return Crossing("ProSurfaceDataGet", static_cast<const void*>(surface), Out(data))
      .Run([&](Call& call) {
        const auto found = call.host.handles.Look(surface, HandleKind::kSurface);
        if (found.object == nullptr) call.Fail(found);
        ProGeomitemdata*& place = call.Place(data, "data place");
        place = &NewSurfaceRecord(*static_cast<const Box*>(found.object))->item;
        call.Give(place, Resource::kGeometryData);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProGeomitemdataFree(ProGeomitemdata** data) {
  return Crossing("ProGeomitemdataFree", static_cast<const void*>(data)).Run([&](Call& call) {
    ProGeomitemdata*& place = call.Place(data, "data place");
    call.TakeBack(place, Resource::kGeometryData);
    std::free(place);
    place = nullptr;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProDrawingSheetTrfGet(ProDrawing drawing, int sheet, ProName size_name,
                               ProMatrix transform) {
  return Crossing("ProDrawingSheetTrfGet", drawing, sheet, OutText(size_name, PRO_NAME_SIZE))
      .Run([&](Call& call) {
        const Model& model = call.ModelAt(drawing);
        if (model.id.kind != ModelKind::kDrawing) call.Fail("not a drawing");
        if (sheet < 1 || sheet > static_cast<int>(model.sheets.size())) {
          call.Fail("the drawing has no sheet " + std::to_string(sheet));
        }
        call.CopyText(size_name, PRO_NAME_SIZE, model.sheets[static_cast<size_t>(sheet - 1)].size);
        if (transform == nullptr) call.Fail("null transform");
        for (int i = 0; i < 4; ++i) {
          for (int k = 0; k < 4; ++k) transform[i][k] = i == k ? 1.0 : 0.0;
        }
        return PRO_TK_NO_ERROR;
      });
}
