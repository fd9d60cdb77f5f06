// The functions that the host calls during a visit, and their hand-over to our callables.
#include "frame/guard/visit.h"

#include <exception>

namespace qm {
namespace {

struct FeatureVisit {
  const FeatureFilter& filter;
  const FeatureAction& action;
  std::exception_ptr failure;
};

struct SurfaceVisit {
  const SurfaceAction& action;
  std::exception_ptr failure;
};

struct CsysVisit {
  const CsysAction& action;
  std::exception_ptr failure;
};

// A filter cannot end a visit: after an exception it and its successors only skip.
ProError FilterFeature(ProFeature* feature, ProAppData data) noexcept {
  auto& visit = *static_cast<FeatureVisit*>(data);
  if (visit.failure != nullptr || feature == nullptr) return PRO_TK_CONTINUE;
  try {
    return visit.filter(*feature) ? PRO_TK_NO_ERROR : PRO_TK_CONTINUE;
  } catch (...) {
    visit.failure = std::current_exception();
  }
  return PRO_TK_CONTINUE;
}

template <typename Visit, typename Item>
ProError Act(Visit& visit, Item&& item) noexcept {
  try {
    return visit.action(item);
  } catch (...) {
    visit.failure = std::current_exception();
  }
  return PRO_TK_GENERAL_ERROR;
}

ProError ActOnFeature(ProFeature* feature, ProError, ProAppData data) noexcept {
  if (feature == nullptr) return PRO_TK_NO_ERROR;
  return Act(*static_cast<FeatureVisit*>(data), *feature);
}

ProError ActOnSurface(ProSurface surface, ProError, ProAppData data) noexcept {
  return Act(*static_cast<SurfaceVisit*>(data), surface);
}

ProError ActOnCsys(ProCsys csys, ProError, ProAppData data) noexcept {
  return Act(*static_cast<CsysVisit*>(data), csys);
}

}  // namespace

ProError VisitFeatures(ProSolid solid, const FeatureFilter& filter, const FeatureAction& action) {
  FeatureVisit visit{filter, action, nullptr};
  const ProError status = ProSolidFeatVisit(solid, &ActOnFeature, &FilterFeature, &visit);
  if (visit.failure != nullptr) std::rethrow_exception(visit.failure);
  return status;
}

ProError VisitSurfaces(ProSolid solid, const SurfaceAction& action) {
  SurfaceVisit visit{action, nullptr};
  const ProError status = ProSolidSurfaceVisit(solid, &ActOnSurface, nullptr, &visit);
  if (visit.failure != nullptr) std::rethrow_exception(visit.failure);
  return status;
}

ProError VisitCoordinateSystems(ProSolid solid, const CsysAction& action) {
  CsysVisit visit{action, nullptr};
  const ProError status = ProSolidCsysVisit(solid, &ActOnCsys, nullptr, &visit);
  if (visit.failure != nullptr) std::rethrow_exception(visit.failure);
  return status;
}

}  // namespace qm
