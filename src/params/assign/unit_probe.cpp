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

// Where units cannot be set, each part would be measured in vain: behind so many that keep theirs
// none is measured until one changes.
constexpr int kMostPartsThatKeep = 10;

constexpr char kUnknownUnit[] = "a length unit of it is not known";
constexpr char kNotMeasured[] = "it cannot be measured";
constexpr char kNotExpected[] = "the parts before it kept theirs";

struct Measurement {
  std::optional<Extents> extents;  // nothing for a part without surfaces
  bool failed = false;             // there is a surface that cannot be measured
};

Measurement Measure(ProMdl part) {
  Measurement measured;
  bool has_surfaces = false;
  const ProError status = VisitSurfaces(part, [&](ProSurface surface) {
    has_surfaces = true;
    return Include(surface, &measured.extents);
  });
  if (Ok(status)) return measured;
  // That is what hosts answer when there is nothing to visit.
  return {std::nullopt, has_surfaces || status != PRO_TK_E_NOT_FOUND};
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
  doubt_ = nullptr;
  if (is_done_ || !to_) return;
  const auto from = LengthUnitOf(part);
  if (from == to_) return;
  if (!from) {
    doubt_ = kUnknownUnit;
  } else if (parts_that_kept_ >= kMostPartsThatKeep) {
    doubt_ = kNotExpected;
  } else {
    const Measurement measured = Measure(part);
    if (measured.extents) before_ = {*from, *measured.extents};
    if (measured.failed) doubt_ = kNotMeasured;
  }
}

void UnitProbe::After(ProMdl part) {
  if (!before_ && doubt_ == nullptr) return;
  const auto now = LengthUnitOf(part);
  if (now == to_) {
    parts_that_kept_ = 0;
    Judge(part);
  } else if (before_ && !now) {
    Doubt(part, kUnknownUnit);
  } else {
    ++parts_that_kept_;  // and says nothing about the conversion
  }
}

void UnitProbe::Judge(ProMdl part) {
  if (!before_) return Doubt(part, doubt_);
  const Measurement after = Measure(part);
  if (!after.extents) return Doubt(part, kNotMeasured);
  is_done_ = true;
  Tell(part, *after.extents);
}

void UnitProbe::Doubt(ProMdl part, const char* why) {
  if (!unjudged_.empty()) return;
  unjudged_ = ToUtf8(ModelName(part).value_or(L"a part")) + ": " + why;
}

void UnitProbe::End() const {
  if (is_done_) return;
  if (!unjudged_.empty()) return LogEvent("units: not judged, " + unjudged_);
  if (parts_that_kept_ >= kMostPartsThatKeep) {
    LogEvent("units: not judged, " + std::to_string(parts_that_kept_) + " parts kept theirs");
  }
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
