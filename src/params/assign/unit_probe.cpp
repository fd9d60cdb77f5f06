// Measures a part by the extremes of its surfaces; nothing is regenerated for it.
#include "params/assign/unit_probe.h"

#include <algorithm>

#include "frame/guard/visit.h"
#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/properties.h"
#include "toolkit/status.h"

namespace qm {
namespace {

std::optional<double> LengthUnitOf(ProMdl part) {
  ProUnitsystem system = {};
  if (!Ok(ProMdlPrincipalunitsystemGet(part, &system))) return std::nullopt;
  return MillimetresOf(FixedText(system.name));
}

// Widens the extents by the surface's furthest points along the axes.
ProError Include(ProSurface surface, std::optional<Extents>* extents) {
  Extents of_surface = {};
  for (size_t axis = 0; axis < 3; ++axis) {
    for (const double sign : {-1.0, 1.0}) {
      ProVector direction = {};
      Pro3dPnt extreme = {};
      direction[axis] = sign;
      const ProError status = ProSurfaceExtremesEval(surface, direction, extreme);
      if (!Ok(status)) return status;
      (sign < 0 ? of_surface.low : of_surface.high)[axis] = extreme[axis];
    }
  }
  if (!*extents) *extents = of_surface;
  for (size_t axis = 0; axis < 3; ++axis) {
    (*extents)->low[axis] = std::min((*extents)->low[axis], of_surface.low[axis]);
    (*extents)->high[axis] = std::max((*extents)->high[axis], of_surface.high[axis]);
  }
  return PRO_TK_NO_ERROR;
}

// Nothing for a part without surfaces, or with one that cannot be measured.
std::optional<Extents> Measure(ProMdl part) {
  std::optional<Extents> extents;
  const ProError status =
      VisitSurfaces(part, [&](ProSurface surface) { return Include(surface, &extents); });
  return Ok(status) ? extents : std::nullopt;
}

const char* TextOf(UnitChange change) {
  switch (change) {
    case UnitChange::kAsChosen:
      return "as was chosen";
    case UnitChange::kAsTheOther:
      return "NOT as was chosen, but as the other conversion promises";
    case UnitChange::kNeither:
      break;
  }
  return "which is what neither conversion promises";
}

}  // namespace

void UnitProbe::Before(ProMdl part) {
  before_.reset();
  if (is_done_ || !to_) return;
  const auto from = LengthUnitOf(part);
  if (!from || *from == *to_) return;
  const auto extents = Measure(part);
  if (extents) before_ = {*from, *extents};
}

void UnitProbe::After(ProMdl part) {
  // A part that has kept its units says nothing about the conversion.
  if (!before_ || LengthUnitOf(part) != to_) return;
  const auto after = Measure(part);
  if (!after) return;
  is_done_ = true;
  Tell(part, *after);
}

void UnitProbe::Tell(ProMdl part, const Extents& after) const {
  const std::wstring name = ModelName(part).value_or(L"a part");
  const UnitChange change = JudgeChange(before_->extents, after, before_->from, *to_, kept_);
  const char* const kept = kept_ == KeptByConversion::kSize ? "same size" : "same dimensions";
  LogEvent("units: " + ToUtf8(name) + " was " + ToUtf8(SizesText(before_->extents)) + " and is " +
           ToUtf8(SizesText(after)) + ", " + TextOf(change) + " (" + kept + ")");
  if (change == UnitChange::kAsTheOther) {
    DisplayNote("Units: %0w has changed as the other conversion promises", name.c_str());
  }
}

}  // namespace qm
