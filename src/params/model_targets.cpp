// Finds and names the models of a batch.
#include "params/model_targets.h"

#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

std::optional<TargetList> FindTargets(const std::optional<CurrentModel>& top,
                                      const std::string& class_name) {
  auto targets = top ? CollectTargets(*top, class_name) : TargetList();
  std::optional<int> count;
  if (targets) count = targets->component_count;
  if (HasComponents(count, L"当前模型中没有合适的子零件/组件")) return targets;
  if (targets) NoteLeftOut(targets->left_out);
  return std::nullopt;
}

std::optional<ModelTarget> ReadTarget(ProMdl model, const KeywordFilter& keywords,
                                      long long* left_out) {
  auto name = ModelName(model);
  if (!name) {
    ++*left_out;
    return std::nullopt;
  }
  if (keywords.Excludes(*name)) return std::nullopt;
  ModelTarget target{model, std::move(*name), {}};
  const ProError status = ProMdlToModelitem(model, &target.owner);
  if (Ok(status) && target.owner.owner != nullptr) return target;
  LogFailure(target.name, "ProMdlToModelitem", status);
  ++*left_out;
  return std::nullopt;
}

void RefreshModelTree() {
  ProMdl current = nullptr;
  if (Ok(ProMdlCurrentGet(&current)) && current != nullptr) ProTreetoolRefresh(current);
}

}  // namespace qm
