// Turns models for their main views.
#include "drawing/create/main_view_orientation.h"

#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "drawing/create/twe_views_rules.h"
#include "frame/geometry/normal_view_rules.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_view.h"
#include "toolkit/geometry.h"
#include "toolkit/status.h"
#include "toolkit/view.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr double kQuarter = 90.0;
// Beyond this no extent is a whole number of any use.
constexpr double kLargestExtent = 1e9;

int WholeExtent(double from, double to) {
  const double extent = to - from;
  return std::fabs(extent) <= kLargestExtent ? static_cast<int>(extent) : 0;
}

std::span<const Axis> TurnsFor(ProMdl model) {
  Pro3dPnt outline[2] = {};
  const ProError status = ProSolidOutlineGet(model, outline);
  if (!Ok(status)) {
    LogFailure(model, "ProSolidOutlineGet", status);
    return {};
  }
  return TurnsByExtents(WholeExtent(outline[0][0], outline[1][0]),
                        WholeExtent(outline[0][1], outline[1][1]),
                        WholeExtent(outline[0][2], outline[1][2]));
}

ProRotationAxis HostAxis(Axis axis) {
  constexpr ProRotationAxis kAxes[] = {PRO_X_ROTATION, PRO_Y_ROTATION, PRO_Z_ROTATION};
  return kAxes[static_cast<int>(axis)];
}

// What the turns may give, the wanted one first: the host's sense is its own.
std::vector<Matrix> Outcomes(std::span<const Axis> turns) {
  std::vector<Matrix> outcomes = {Identity()};
  for (const Axis axis : turns) {
    std::vector<Matrix> turned;
    for (const double angle : {kQuarter, -kQuarter}) {
      for (const Matrix& outcome : outcomes) turned.push_back(Turned(outcome, axis, angle));
    }
    outcomes = std::move(turned);
  }
  return outcomes;
}

// The view as it shows the turns; set as wanted when the host turned about other axes.
Matrix TurnedView(ProMdl model, const std::vector<Matrix>& outcomes) {
  const auto shown = ReadView(model);
  const auto unit = shown ? Normalised(*shown) : std::nullopt;
  for (const Matrix& outcome : outcomes) {
    if (unit && SameRotation(*unit, outcome)) return *unit;
  }
  LogEvent("ProViewRotate did not turn the view as wanted: its matrix is set");
  WriteView(model, outcomes.front());
  return outcomes.front();
}

bool HasUnitRows(const Matrix& view) {
  const auto unit = Normalised(view);
  return unit && SameRotation(*unit, view);
}

// Whether the window can show again what it shows. A host may refuse rows that carry the zoom: what
// it takes then would lose the zoom.
bool CanComeBack(ProMdl model, const Matrix& view) {
  return HasUnitRows(view) || (Normalised(view) && Ok(WriteView(model, view)));
}

Matrix OrientationByExtents(ProMdl model) {
  const auto saved = ReadView(model);
  if (!saved || !CanComeBack(model, *saved)) return Outcomes(TurnsFor(model)).front();
  WriteView(model, Identity());
  const std::span<const Axis> turns = TurnsFor(model);
  for (const Axis axis : turns) ProViewRotate(model, nullptr, HostAxis(axis), kQuarter);
  const Matrix orientation = TurnedView(model, Outcomes(turns));
  RestoreView(model, *saved);
  ProWindowRepaint(PRO_VALUE_UNUSED);
  return orientation;
}

// What is read is snapped once more, which changes nothing unless the window would not turn.
std::optional<Matrix> OrientationAsShown(ProMdl model) {
  const ProError status = SnapView(model);
  if (!Ok(status)) LogFailure(model, "the view along the axes", status);
  const auto shown = ReadView(model);
  const auto snapped = shown ? NormalView(*shown) : std::nullopt;
  return snapped ? Normalised(*snapped) : std::nullopt;
}

}  // namespace

Matrix MainViewOrientation(ProMdl model, bool as_shown) {
  const auto shown = as_shown ? OrientationAsShown(model) : std::nullopt;
  return shown ? *shown : OrientationByExtents(model);
}

}  // namespace qm
