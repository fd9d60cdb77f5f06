// Host functions of the feature family: the visit, and what a feature is.
#include <algorithm>

#include "workbench/api/visit.h"
#include "workbench/host/arguments.h"

namespace wb {
namespace {

// Feature types that stand among the components of a top assembly without placing a model.
constexpr int kComponentLikeTypes[] = {1104, 1232};

struct ComponentLikeIn : FeatureIn {
  FeaturePlace Look(const Call& call) const {
    const FeaturePlace at = FeatureIn::Look(call);
    const bool like =
        std::ranges::find(kComponentLikeTypes, at.feature.type) != std::end(kComponentLikeTypes);
    if (!at.feature.IsComponent() && !like) {
      call.Fail("feature " + std::to_string(at.feature.id) + " is no component");
    }
    return at;
  }
};

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProSolidFeatVisit(ProSolid solid, ProFeatureVisitAction action,
                           ProFeatureFilterAction filter, ProAppData data) {
  return Crossing(__func__, SolidIn{solid}, action, filter, DataIn{data})
      .Run([&](const Call& call, const Model& model, auto, auto, void*) {
        const ItemList<Feature>& features = model.solid().features;
        const auto item_at = [&](size_t i) {
          return ProFeature{PRO_FEATURE, features[i].id, solid};
        };
        return VisitItems(
            call, solid, [&] { return features.size(); }, item_at, action, filter, data);
      });
}

ProError ProFeatureStatusflagsGet(ProFeature* feature, int* flags) {
  return Crossing(__func__, FeatureIn{feature}, Out(flags, "flags place"))
      .Run([](const Feature& from, int& place) { place = from.status_flags; });
}

ProError ProFeatureTypeGet(ProFeature* feature, ProFeattype* type) {
  return Crossing(__func__, FeatureIn{feature}, Out(type, "type place"))
      .Run([](const Feature& from, ProFeattype& place) { place = from.type; });
}

ProError ProFeatureStatusGet(ProFeature* feature, ProFeatStatus* status) {
  return Crossing(__func__, FeatureIn{feature}, Out(status, "status place"))
      .Run([](const Feature& from, ProFeatStatus& place) {
        place = static_cast<ProFeatStatus>(from.status);
      });
}

ProError ProFeatureVisibilityGet(ProFeature* feature, ProBoolean* is_visible) {
  return Crossing(__func__, FeatureIn{feature}, Out(is_visible, "answer place"))
      .Run([](const Feature& from, ProBoolean& place) {
        place = from.visible ? PRO_B_TRUE : PRO_B_FALSE;
      });
}

ProError ProAsmcompMdlGet(ProAsmcomp* component, ProMdl* model) {
  return Crossing(__func__, ComponentLikeIn{{component}}, Out(model, "model place"))
      .Run([](const Feature& from, ProMdl& place) {
        const Model* const below = from.ComponentModel();
        if (below == nullptr) return PRO_TK_E_NOT_FOUND;
        place = below->handle;
        return PRO_TK_NO_ERROR;
      });
}
