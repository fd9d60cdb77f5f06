// Collects the targets of the parameter dialog's buttons and runs over them.
#include "params/param_batch.h"

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/target_list.h"
#include "frame/text/keyword_filter.h"
#include "params/param_value_rules.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kNoComponents[] = L"当前模型中没有合适的子零件/组件";

// False, after the message, when there is nothing to work on. A top model alone is not enough.
bool FindTargets(const DialogView& dialog, const BatchFields& fields,
                 const std::optional<CurrentModel>& top, TargetList* targets) {
  const std::string class_name = dialog.RadioValue(fields.class_radio);
  if (top && !Ok(CollectTargets(*top, class_name, targets))) {
    ShowShortMessage(kNoComponentArray);
    return false;
  }
  if (targets->component_count == 0) ShowShortMessage(kNoComponents);
  return targets->component_count != 0;
}

// Nothing, after a line in the log, when the model is excluded or cannot be read. A model whose
// name is not known might be an excluded one, so it is left alone.
std::optional<ParamTarget> ReadTarget(ProMdl model, const KeywordFilter& keywords) {
  ProName name{};
  ProError status = ProMdlNameGet(model, name);
  if (!Ok(status)) {
    LogFailure(model, "ProMdlNameGet", status);
    return std::nullopt;
  }
  name[PRO_NAME_SIZE - 1] = L'\0';
  if (keywords.Excludes(name)) return std::nullopt;
  ParamTarget target{model, name, {}};
  status = ProMdlToModelitem(model, &target.item);
  if (Ok(status) && target.item.owner != nullptr) return target;
  LogFailure(model, "ProMdlToModelitem", status);
  return std::nullopt;
}

// Nothing, after a message, when the text cannot be a parameter's name.
std::optional<HostName> ReadParamName(const DialogView& dialog, const char* component) {
  const auto name = dialog.TryInputValue(component);
  const wchar_t* const refusal = name ? ParamNameRefusal(*name) : kUnreadableField;
  if (refusal == nullptr) return HostName(*name);
  ShowShortMessage(refusal);
  return std::nullopt;
}

void RefreshModelTree() {
  ProMdl current = nullptr;
  if (Ok(ProMdlCurrentGet(&current)) && current != nullptr) ProTreetoolRefresh(current);
}

}  // namespace

void ForEachTarget(const char* action, const DialogView& dialog, const BatchFields& fields,
                   const std::optional<CurrentModel>& top,
                   const std::function<bool(const ParamTarget&, HostName&)>& apply) {
  CommandLog log(action);
  TargetList targets;
  if (!FindTargets(dialog, fields, top, &targets)) return;
  // After the search: a name is of no account where there is nothing to name it in.
  auto name = ReadParamName(dialog, fields.name_input);
  if (!name) return;
  const auto keyword_list = dialog.TryInputValue(fields.keywords_input);
  if (!keyword_list) {
    ShowShortMessage(kUnreadableField);
    return;
  }
  const KeywordFilter keywords(*keyword_list);
  long long applied = 0;
  for (const ProMdl model : targets.models) {
    const auto target = ReadTarget(model, keywords);
    if (target && apply(*target, *name)) ++applied;
  }
  LogCount("components", targets.component_count);
  LogCount("models", static_cast<long long>(targets.models.size()));
  LogCount("worked on", applied);
  RefreshModelTree();
}

}  // namespace qm
