// Surfaces of parts and sheets of drawings.
#include "tests/workbench/api/host_contract.h"

namespace wb {
namespace {

ProError NoteSurface(ProSurface surface, ProError, ProAppData data) {
  *static_cast<ProSurface*>(data) = surface;
  return PRO_TK_NO_ERROR;
}

TEST_F(HostContract, SurfacesAndSheetsAreThoseOfTheirModels) {
  lid_->solid().surfaces.Add({1, {{0, 0, 0}, {10, 20, 0}}});
  ProSurface surface = nullptr;
  ProGeomitemdata* data = nullptr;
  ProName size{};
  ProMatrix matrix{};
  const auto find = [&] {
    return ProSolidSurfaceVisit(lid_->handle, &NoteSurface, nullptr, &surface);
  };
  Check({
      {"found", find, PRO_TK_NO_ERROR},
      {"its data", [&] { return ProSurfaceDataGet(surface, &data); }, PRO_TK_NO_ERROR},
      {"freed", [&] { return ProGeomitemdataFree(&data); }, PRO_TK_NO_ERROR},
      {"of a model",
       [&] { return ProSurfaceDataGet(static_cast<ProSurface>(lid_->handle), &data); },
       PRO_TK_BAD_INPUTS, "ProSurfaceDataGet: a model handle given as a surface handle"},
      {"no sheet", [&] { return ProDrawingSheetTrfGet(drawing_->handle, 2, size, matrix); },
       PRO_TK_BAD_INPUTS, "ProDrawingSheetTrfGet: the drawing has no sheet 2"},
  });
}

}  // namespace
}  // namespace wb
