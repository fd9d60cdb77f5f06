// Host functions for surfaces and coordinate systems of solids, and for their regeneration.
#include <cmath>
#include <cstdlib>

#include "workbench/api/matrix.h"
#include "workbench/api/visit.h"
#include "workbench/host/arguments.h"
#include "workbench/session/extents.h"

namespace wb {
namespace {

struct SurfaceIn {
  ProSurface handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  Surface& Look(const Call& call) const {
    const HandleTable::Found found = call.Look(handle, HandleKind::kSurface);
    return *static_cast<Model*>(found.object)->solid().surfaces.Find(found.id);
  }
};

// Where the body writes the corner of a surface's box.
struct PointPlace {
  double* place;
  void operator=(const Point& point) { std::copy(point.begin(), point.end(), place); }
};
struct PointOut {
  double* place;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(place)); }
  PointPlace Look(const Call& call) const { return {&call.Place(place, "point")}; }
  void Empty() const {
    if (place != nullptr) std::fill_n(place, 3, 0.0);
  }
};

ProSurface HandleOf(const Call& call, Model& model, const Surface& surface) {
  return static_cast<ProSurface>(
      call.host.handles.GiveInside(HandleKind::kSurface, &model, surface.id));
}

struct CsysIn {
  ProCsys handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  std::pair<Model*, int> Look(const Call& call) const {
    const HandleTable::Found found = call.Look(handle, HandleKind::kCsys);
    return {static_cast<Model*>(found.object), found.id};
  }
};

// Where the orientation stands when a host puts something else in its place: no orientation.
constexpr auto kNoOrientation = static_cast<ProSurfaceOrient>(120);

// One block: the item's record and, behind it, the surface's.
struct SurfaceRecord {
  ProGeomitemdata item;
  ProSurfacedata surface;
};

ProGeomitemdata* NewSurfaceRecord(const Box& box) {
  auto* const record = static_cast<SurfaceRecord*>(std::calloc(1, sizeof(SurfaceRecord)));
  record->item.obj_type = PRO_SURFACE;
  record->item.data.p_surface_data = &record->surface;
  record->surface.type = PRO_SRF_PLANE;
  std::copy(box.min.begin(), box.min.end(), record->surface.xyz_min);
  std::copy(box.max.begin(), box.max.end(), record->surface.xyz_max);
  record->surface.orient = PRO_SURF_ORIENT_OUT;
  return &record->item;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProSolidOutlineGet(ProSolid solid, Pro3dPnt outline[2]) {
  return Crossing(__func__, SolidIn{{solid}}, OutCorners{outline})
      .Run([](const Model& from, CornersPlace place) {
        const auto extents = ExtentsOf(from);
        if (!extents) return PRO_TK_GENERAL_ERROR;
        place = *extents;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProSolidSurfaceVisit(ProSolid solid, ProSurfaceVisitAction action,
                              ProSurfaceFilterAction filter, ProAppData data) {
  return Crossing(__func__, SolidIn{solid}, action, filter, DataIn{data})
      .Run([&](const Call& call, Model& model, auto, auto, void*) {
        const ItemList<Surface>& surfaces = model.solid().surfaces;
        const auto item_at = [&](size_t i) { return HandleOf(call, model, surfaces[i]); };
        return VisitItems(
            call, solid, [&] { return surfaces.size(); }, item_at, action, filter, data);
      });
}

ProError ProSurfaceExtremesEval(ProSurface surface, ProVector direction, Pro3dPnt extreme) {
  return Crossing(__func__, SurfaceIn{surface}, DataIn{direction}, PointOut{extreme})
      .Run([&](const Call& call, const Surface& from, void*, PointPlace place) {
        const double* const towards = &call.Place(direction, "direction");
        const double length = std::hypot(towards[0], towards[1], towards[2]);
        if (!std::isfinite(length) || length == 0.0) call.Fail("a direction without a length");
        Point point = from.box.min;
        for (size_t axis = 0; axis < point.size(); ++axis) {
          if (towards[axis] > 0) point[axis] = from.box.max[axis];
        }
        place = point;
      });
}

ProError ProSurfaceToGeomitem(ProSolid owner, ProSurface surface, ProGeomitem* item) {
  return Crossing(__func__, SolidIn{{owner}}, SurfaceIn{surface}, Out(item, "item place"))
      .Run([&](const Call& call, Model& model, const Surface& from, ProGeomitem& place) {
        if (call.Look(surface, HandleKind::kSurface).object != &model) {
          call.Fail("the surface is not one of " + model.id.Text());
        }
        place = {PRO_SURFACE, from.id, owner};
      });
}

ProError ProSurfaceDataGet(ProSurface surface, ProGeomitemdata** data) {
  return Crossing(__func__, SurfaceIn{surface}, Out(data, "data place"))
      .Run([](const Call& call, const Surface& from, ProGeomitemdata*& place) {
        place = NewSurfaceRecord(from.box);
        if (call.host.habits.surface_data_has_unknown_order) {
          place->data.p_surface_data->orient = kNoOrientation;
        }
        call.Give(place, Resource::kGeometryData);
      });
}

ProError ProGeomitemdataFree(ProGeomitemdata** data) {
  return Crossing(__func__, PlaceGivenBack(data, "data place"))
      .Run([](const Call& call, ProGeomitemdata*& place) {
        call.TakeBack(place, Resource::kGeometryData);
        std::free(place);
        place = nullptr;
      });
}

ProError ProSolidCsysVisit(ProSolid solid, ProCsysVisitAction action, ProCsysFilterAction filter,
                           ProAppData data) {
  return Crossing(__func__, SolidIn{{solid}}, action, filter, DataIn{data})
      .Run([&](const Call& call, Model& model, auto, auto, void*) {
        const ItemList<CoordinateSystem>& all = model.solid().coordinate_systems;
        const auto item_at = [&](size_t i) {
          return static_cast<ProCsys>(
              call.host.handles.GiveInside(HandleKind::kCsys, &model, all[i].id));
        };
        return VisitItems(
            call, solid, [&] { return all.size(); }, item_at, action, filter, data);
      });
}

ProError ProCsysToGeomitem(ProSolid owner, ProCsys csys, ProGeomitem* item) {
  return Crossing(__func__, SolidIn{{owner}}, CsysIn{csys}, Out(item, "item place"))
      .Run([](const Call& call, const Model& of, const std::pair<Model*, int>& from,
              ProGeomitem& place) {
        if (from.first != &of) call.Fail("a coordinate system of another model");
        place = {PRO_CSYS, from.second, of.handle};
      });
}
