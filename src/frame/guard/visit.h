// Visits of the host with callables of ours: an exception inside stops the visit and comes out of
// the visiting function, never through the host's frames.
#pragma once

#include <functional>

#include "toolkit/feature.h"
#include "toolkit/geometry.h"

namespace qm {

// True: the feature is visited.
using FeatureFilter = std::function<bool(ProFeature&)>;
// Any answer but PRO_TK_NO_ERROR ends the visit, which then returns that answer.
using FeatureAction = std::function<ProError(ProFeature&)>;
using SurfaceAction = std::function<ProError(ProSurface)>;
using CsysAction = std::function<ProError(ProCsys)>;

// The features of one solid in the host's order; the components' own features are not entered.
ProError VisitFeatures(ProSolid solid, const FeatureFilter& filter, const FeatureAction& action);

ProError VisitSurfaces(ProSolid solid, const SurfaceAction& action);

// The coordinate systems of one solid in the host's order.
ProError VisitCoordinateSystems(ProSolid solid, const CsysAction& action);

}  // namespace qm
