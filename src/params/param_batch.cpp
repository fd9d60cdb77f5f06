// Collects the targets of the parameter dialog's buttons and runs over them.
#include "params/param_batch.h"

#include "frame/component_list.h"
#include "frame/keyword_filter.h"
#include "frame/message_box.h"
#include "frame/run_log.h"
#include "frame/target_list.h"
#include "params/param_value_rules.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kNoComponents[] = L"当前模型中没有合适的子零件/组件";

// False, after the message, when there is nothing to work on. A top model alone is not enough.
bool FindTargets(const DialogView& dialog, const TargetFields& fields,
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

void LogBatch(const char* action, const TargetList& targets, size_t applied) {
  LogEvent(std::string(action) + ": " + std::to_string(targets.component_count) + " components, " +
           std::to_string(targets.models.size()) + " models, " + std::to_string(applied) +
           " worked on");
}

void RefreshModelTree() {
  ProMdl current = nullptr;
  if (Ok(ProMdlCurrentGet(&current)) && current != nullptr) ProTreetoolRefresh(current);
}

}  // namespace

std::optional<std::wstring> ReadParamName(const DialogView& dialog, const char* component) {
  auto name = dialog.TryInputValue(component);
  const wchar_t* const refusal = name ? ParamNameRefusal(*name) : kUnreadableField;
  if (refusal == nullptr) return name;
  ShowShortMessage(refusal);
  return std::nullopt;
}

void ForEachTarget(const char* action, const DialogView& dialog, const TargetFields& fields,
                   const std::optional<CurrentModel>& top,
                   const std::function<bool(const ParamTarget&)>& apply) {
  TargetList targets;
  if (!FindTargets(dialog, fields, top, &targets)) return;
  const auto keyword_list = dialog.TryInputValue(fields.keywords_input);
  if (!keyword_list) {
    ShowShortMessage(kUnreadableField);
    return;
  }
  const KeywordFilter keywords(*keyword_list);
  size_t applied = 0;
  for (const ProMdl model : targets.models) {
    const auto target = ReadTarget(model, keywords);
    if (target && apply(*target)) ++applied;
  }
  LogBatch(action, targets, applied);
  RefreshModelTree();
}

}  // namespace qm
