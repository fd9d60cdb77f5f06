// The plain visitor. Its calls and their order are those of a component collection: per feature the
// status flags and the type, then status and visibility, the append, the model and its type.
#include "workbench/bench/bench_walk.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <unordered_set>

#include "workbench/base/text.h"
#include "workbench/host/host_types.h"

namespace wb {
namespace {

constexpr int kLeftOutFlags = 130;

void Require(ProError status, const char* function) {
  if (status != PRO_TK_NO_ERROR) {
    throw std::runtime_error(std::string("bare walk: ") + function + " answered " +
                             std::to_string(static_cast<int>(status)));
  }
}

struct Component {
  ProFeature feature;
  ProMdl model;
  ProMdlType type;
};

struct Walk {
  ProArray features = nullptr;
  std::vector<Component> components;
  std::vector<ProMdl> to_visit;
};

ProError FilterComponent(ProFeature* feature, ProAppData) {
  int flags = 0;
  if (ProFeatureStatusflagsGet(feature, &flags) != PRO_TK_NO_ERROR || flags == kLeftOutFlags) {
    return PRO_TK_CONTINUE;
  }
  ProFeattype type = 0;
  const ProError status = ProFeatureTypeGet(feature, &type);
  return status == PRO_TK_NO_ERROR && type == PRO_FEAT_COMPONENT ? PRO_TK_NO_ERROR
                                                                 : PRO_TK_CONTINUE;
}

ProError CollectComponent(ProFeature* feature, ProError, ProAppData data) {
  auto& walk = *static_cast<Walk*>(data);
  ProFeatStatus status = PRO_FEAT_INVALID;
  ProBoolean visible = PRO_B_FALSE;
  if (ProFeatureStatusGet(feature, &status) != PRO_TK_NO_ERROR ||
      ProFeatureVisibilityGet(feature, &visible) != PRO_TK_NO_ERROR || status != PRO_FEAT_ACTIVE ||
      visible != PRO_B_TRUE) {
    return PRO_TK_NO_ERROR;
  }
  ProArrayObjectAdd(&walk.features, PRO_VALUE_UNUSED, 1, feature);
  Component component{*feature, nullptr, PRO_MDL_UNUSED};
  if (ProAsmcompMdlGet(feature, &component.model) != PRO_TK_NO_ERROR) return PRO_TK_CONTINUE;
  ProMdlTypeGet(component.model, &component.type);
  if (component.type == PRO_MDL_ASSEMBLY) walk.to_visit.push_back(component.model);
  walk.components.push_back(component);
  return PRO_TK_NO_ERROR;
}

void Collect(ProMdl top, Walk& walk) {
  Require(ProArrayAlloc(0, sizeof(ProFeature), 1, &walk.features), "ProArrayAlloc");
  walk.to_visit.push_back(top);
  while (!walk.to_visit.empty()) {
    const ProMdl assembly = walk.to_visit.back();
    walk.to_visit.pop_back();
    Require(ProSolidFeatVisit(assembly, &CollectComponent, &FilterComponent, &walk),
            "ProSolidFeatVisit");
  }
}

void Reverse(ProFeature* part) {
  ProBoolean hidden = PRO_B_FALSE;
  Require(ProModelitemIsHidden(part, &hidden), "ProModelitemIsHidden");
  Require(hidden == PRO_B_TRUE ? ProModelitemUnhide(part) : ProModelitemHide(part),
          "ProModelitemHide");
}

void CreateParameter(ProMdl model) {
  ProName name = {};
  ProModelitem item = {};
  Require(ProMdlNameGet(model, name), "ProMdlNameGet");
  Require(ProMdlToModelitem(model, &item), "ProMdlToModelitem");
  ProName parameter_name = {};
  ToWide(kBenchParameter).copy(parameter_name, PRO_NAME_SIZE - 1);
  ProParamvalue value = {};
  value.type = PRO_PARAM_INTEGER;
  value.value.i_val = 1;
  ProParameter parameter = {};
  Require(ProParameterCreate(&item, parameter_name, &value, &parameter), "ProParameterCreate");
}

// Each model once, the top included.
void CreateParameters(ProMdl top, const Walk& walk) {
  std::vector<ProMdl> models = {top};
  for (const Component& component : walk.components) models.push_back(component.model);
  std::sort(models.begin(), models.end());
  models.erase(std::unique(models.begin(), models.end()), models.end());
  for (const ProMdl model : models) CreateParameter(model);
}

void Do(BenchWork work, ProMdl top, Walk& walk) {
  if (work == BenchWork::kParameter) CreateParameters(top, walk);
  if (work != BenchWork::kShow && work != BenchWork::kReverse) return;
  for (Component& component : walk.components) {
    if (work == BenchWork::kReverse && component.type == PRO_MDL_PART) {
      Reverse(&component.feature);
    } else {
      Require(ProModelitemUnhide(&component.feature), "ProModelitemUnhide");
    }
  }
}

std::vector<Model*> PlacedIn(const Model& assembly) {
  std::vector<Model*> placed;
  for (const Feature& feature : assembly.solid().features) {
    if (!feature.IsComponent() || feature.status != FeatureStatus::kActive) continue;
    if (Model* const model = feature.ComponentModel()) placed.push_back(model);
  }
  return placed;
}

}  // namespace

WalkTaken BareWalk(const Model& top, BenchWork work) {
  const long calls_before = TheHost().trace.calls();
  const auto start = std::chrono::steady_clock::now();
  {
    Walk walk;
    Collect(top.handle, walk);
    Do(work, top.handle, walk);
    Require(ProArrayFree(&walk.features), "ProArrayFree");
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  return {seconds.count(), TheHost().trace.calls() - calls_before};
}

Model* LastPart(Model& top) {
  std::unordered_set<const Model*> met;
  std::vector<Model*> ahead = {&top};
  Model* last = nullptr;
  while (!ahead.empty()) {
    Model* const model = ahead.back();
    ahead.pop_back();
    if (!met.insert(model).second) continue;
    if (model->id.kind == ModelKind::kPart) {
      last = model;
    } else {
      // What comes first lies on top.
      const std::vector<Model*> below = PlacedIn(*model);
      ahead.insert(ahead.end(), below.rbegin(), below.rend());
    }
  }
  return last;
}

}  // namespace wb
