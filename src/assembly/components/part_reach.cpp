// Extremes of surfaces.
#include "assembly/components/part_reach.h"

#include <iterator>
#include <limits>

#include "frame/guard/visit.h"
#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// A success that fills nothing in is a failure.
ProError IncludeSide(ProSurface surface, const Matrix& placement, BoxSide side, Reach* reach) {
  auto direction = DirectionInPart(placement, side);
  if (!direction) return PRO_TK_BAD_INPUTS;
  constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
  Vector extreme = {{kNothing, kNothing, kNothing}};
  const ProError status = ProSurfaceExtremesEval(surface, direction->xyz, extreme.xyz);
  if (!Ok(status)) return status;
  const bool is_included = reach->Include(side, CoordinateOf(placement, side, extreme));
  return is_included ? PRO_TK_NO_ERROR : PRO_TK_INVALID_ITEM;
}

struct SurfaceAnswer {
  ProError status = PRO_TK_NO_ERROR;
  bool is_nowhere = false;  // reaches nowhere on any side
};

SurfaceAnswer IncludeSurface(ProSurface surface, const Matrix& placement, Reach* reach) {
  size_t missing = 0;
  for (const BoxSide side : kBoxSides) {
    const ProError status = IncludeSide(surface, placement, side, reach);
    if (status == PRO_TK_E_NOT_FOUND) {
      ++missing;
    } else if (!Ok(status)) {
      return {status, false};
    }
  }
  // One that reaches somewhere must reach somewhere on all sides.
  if (missing == std::size(kBoxSides)) return {PRO_TK_NO_ERROR, true};
  return {missing == 0 ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND, false};
}

std::optional<PartReach> Measure(ProMdl part, const Matrix& placement) {
  PartReach measured;
  ProError unread = PRO_TK_NO_ERROR;
  const ProError visited = VisitSurfaces(part, [&](ProSurface surface) {
    const SurfaceAnswer answer = IncludeSurface(surface, placement, &measured.reach);
    if (answer.is_nowhere) measured.is_whole = false;
    return unread = answer.status;
  });
  // Without it the part may still be measured by its other surfaces.
  if (!measured.is_whole) {
    LogFailure(part, "ProSurfaceExtremesEval on all sides", PRO_TK_E_NOT_FOUND);
    if (!measured.reach.is_complete()) return std::nullopt;
  }
  if (!Ok(unread)) {
    LogFailure(part, "ProSurfaceExtremesEval", unread);
    return std::nullopt;
  }
  if (!Ok(visited) && visited != PRO_TK_E_NOT_FOUND) {
    LogFailure(part, "ProSolidSurfaceVisit", visited);
    return std::nullopt;
  }
  return measured;
}

}  // namespace

const PartReach* PartReaches::Of(ProMdl part, const Matrix& placement) {
  Turn turn{};
  for (int i = 0; i < kAxisCount * kAxisCount; ++i) {
    turn[static_cast<size_t>(i)] = placement.rows[i / kAxisCount][i % kAxisCount];
  }
  auto [at, is_new] = reaches_.try_emplace({part, turn});
  if (is_new) at->second = Measure(part, placement);
  return at->second ? &*at->second : nullptr;
}

}  // namespace qm
