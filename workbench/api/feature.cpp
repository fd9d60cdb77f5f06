// Host functions of the feature family: the visit, and what a feature is.
#include <algorithm>

#include "workbench/host/loans.h"

using namespace wb;

namespace wb {
namespace {

// One feature's turn in a visit: the filter may skip it, the action may end the visit.
ProError VisitOne(ProFeature& item, ProFeatureVisitAction action, ProFeatureFilterAction filter,
                  ProAppData data, bool& visited) {
  const ProError filtered = filter == nullptr ? PRO_TK_NO_ERROR : filter(&item, data);
  if (filtered == PRO_TK_CONTINUE) return PRO_TK_NO_ERROR;
  visited = true;
  return action(&item, filtered, data);
}

// Feature types that stand among the components of a top assembly without placing a model.
constexpr int kComponentLikeTypes[] = {1104, 1232};

Feature& ComponentAt(const Call& call, const ProModelitem* item) {
  Feature& feature = call.FeatureAt(item);
  const bool like =
      std::ranges::find(kComponentLikeTypes, feature.type) != std::end(kComponentLikeTypes);
  if (!feature.IsComponent() && !like) {
    call.Fail("feature " + std::to_string(feature.id) + " is no component");
  }
  return feature;
}

}  // namespace
}  // namespace wb

ProError ProSolidFeatVisit(ProSolid solid, ProFeatureVisitAction action,
                           ProFeatureFilterAction filter, ProAppData data) {
  return Crossing("ProSolidFeatVisit", solid, action, filter, static_cast<const void*>(data))
      .Run([&](Call& call) {
        const Model& model = call.SolidAt(solid);
        if (action == nullptr) call.Fail("null visit action");
        bool visited = false;
        for (size_t i = 0; i < model.features.size(); ++i) {
          ProFeature item{PRO_FEATURE, model.features[i].id, solid};
          const ProError answer = VisitOne(item, action, filter, data, visited);
          call.CheckStillThere(solid);
          if (answer != PRO_TK_NO_ERROR) return answer;
        }
        return visited ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
      });
}

ProError ProFeatureStatusflagsGet(ProFeature* feature, int* flags) {
  return Crossing("ProFeatureStatusflagsGet", feature, Out(flags)).Run([&](Call& call) {
    call.Place(flags, "flags place") = call.FeatureAt(feature).status_flags;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProFeatureTypeGet(ProFeature* feature, ProFeattype* type) {
  return Crossing("ProFeatureTypeGet", feature, Out(type)).Run([&](Call& call) {
    call.Place(type, "type place") = call.FeatureAt(feature).type;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProFeatureStatusGet(ProFeature* feature, ProFeatStatus* status) {
  return Crossing("ProFeatureStatusGet", feature, Out(status)).Run([&](Call& call) {
    call.Place(status, "status place") = static_cast<ProFeatStatus>(call.FeatureAt(feature).status);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProFeatureVisibilityGet(ProFeature* feature, ProBoolean* is_visible) {
  return Crossing("ProFeatureVisibilityGet", feature, Out(is_visible)).Run([&](Call& call) {
    call.Place(is_visible, "answer place") =
        call.FeatureAt(feature).visible ? PRO_B_TRUE : PRO_B_FALSE;
    return PRO_TK_NO_ERROR;
  });
}

ProError ProAsmcompMdlGet(ProAsmcomp* component, ProMdl* model) {
  return Crossing("ProAsmcompMdlGet", component, Out(model)).Run([&](Call& call) {
    const Feature& feature = ComponentAt(call, component);
    ProMdl& place = call.Place(model, "model place");
    if (feature.model == nullptr) return PRO_TK_E_NOT_FOUND;
    place = feature.model->handle;
    return PRO_TK_NO_ERROR;
  });
}
