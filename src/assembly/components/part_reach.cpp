// Extremes of surfaces.
#include "assembly/components/part_reach.h"

#include <limits>

#include "frame/guard/visit.h"
#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// A success that fills nothing in is a failure.
ProError IncludeSurface(ProSurface surface, const Matrix& placement, Reach* reach) {
  for (const BoxSide side : kBoxSides) {
    Vector direction = DirectionInPart(placement, side);
    constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
    Vector extreme = {{kNothing, kNothing, kNothing}};
    const ProError status = ProSurfaceExtremesEval(surface, direction.xyz, extreme.xyz);
    if (!Ok(status)) return status;
    if (!reach->Include(side, CoordinateOf(placement, side, extreme))) return PRO_TK_INVALID_ITEM;
  }
  return PRO_TK_NO_ERROR;
}

std::optional<Reach> Measure(ProMdl part, const Matrix& placement) {
  Reach reach;
  ProError unread = PRO_TK_NO_ERROR;
  const ProError visited = VisitSurfaces(part, [&](ProSurface surface) {
    return unread = IncludeSurface(surface, placement, &reach);
  });
  if (!Ok(unread)) {
    LogFailure(part, "ProSurfaceExtremesEval", unread);
    return std::nullopt;
  }
  if (!Ok(visited) && visited != PRO_TK_E_NOT_FOUND) {
    LogFailure(part, "ProSolidSurfaceVisit", visited);
    return std::nullopt;
  }
  return reach;
}

}  // namespace

const Reach* PartReaches::Of(ProMdl part, const Matrix& placement) {
  Turn turn{};
  for (int i = 0; i < kAxisCount * kAxisCount; ++i) {
    turn[static_cast<size_t>(i)] = placement.rows[i / kAxisCount][i % kAxisCount];
  }
  auto [at, is_new] = reaches_.try_emplace({part, turn});
  if (is_new) at->second = Measure(part, placement);
  return at->second ? &*at->second : nullptr;
}

}  // namespace qm
