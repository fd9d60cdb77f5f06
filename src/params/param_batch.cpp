// Asks, plans and applies for the buttons of the parameter dialog.
#include "params/param_batch.h"

#include <vector>

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/opening.h"
#include "frame/models/target_list.h"
#include "frame/text/fixed_text.h"
#include "frame/text/keyword_filter.h"
#include "params/param_value_rules.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kNoComponents[] = L"当前模型中没有合适的子零件/组件";

// What the user wants, as the fields say it.
struct ParamWishes {
  std::string class_name;
  std::optional<std::wstring> param_name;    // nothing: the host does not tell
  std::optional<std::wstring> keyword_list;  // the same
};

struct ParamPlan {
  HostName param_name;
  std::vector<PlannedParam> params;  // in the order of the targets
  int component_count;
  size_t model_count;
};

ParamWishes AskWishes(const DialogView& dialog, const BatchFields& fields) {
  return {dialog.RadioValue(fields.class_radio), dialog.TryInputValue(fields.name_input),
          dialog.TryInputValue(fields.keywords_input)};
}

// Nothing, after the message, when there is nothing to work on. A top model alone is not enough.
std::optional<TargetList> FindTargets(const std::optional<CurrentModel>& top,
                                      const std::string& class_name) {
  auto targets = top ? CollectTargets(*top, class_name) : TargetList();
  std::optional<int> count;
  if (targets) count = targets->component_count;
  return HasComponents(count, kNoComponents) ? targets : std::nullopt;
}

// Why the wishes cannot be fulfilled; null when they can.
const wchar_t* RefusalOf(const ParamWishes& wishes) {
  if (!wishes.param_name) return kUnreadableField;
  const wchar_t* const refusal = ParamNameRefusal(*wishes.param_name);
  if (refusal != nullptr) return refusal;
  return wishes.keyword_list ? nullptr : kUnreadableField;
}

// Nothing, after a line in the log, when the model is excluded or cannot be read. A model whose
// name is not known might be an excluded one, so it is left alone.
std::optional<ParamTarget> ReadTarget(ProMdl model, const KeywordFilter& keywords) {
  ProName buffer{};
  ProError status = ProMdlNameGet(model, buffer);
  if (!Ok(status)) {
    LogFailure(model, "ProMdlNameGet", status);
    return std::nullopt;
  }
  const std::wstring_view name = FixedText(buffer);
  if (keywords.Excludes(name)) return std::nullopt;
  ParamTarget target{model, std::wstring(name), {}};
  status = ProMdlToModelitem(model, &target.owner);
  if (Ok(status) && target.owner.owner != nullptr) return target;
  LogFailure(model, "ProMdlToModelitem", status);
  return std::nullopt;
}

// Nothing, after the message, when there is nothing to plan.
std::optional<ParamPlan> MakePlan(const ParamWishes& wishes, const std::optional<CurrentModel>& top,
                                  const ParamBatch& batch) {
  const auto targets = FindTargets(top, wishes.class_name);
  if (!targets) return std::nullopt;
  // After the search: a name is of no account where there is nothing to name it in.
  if (const wchar_t* const refusal = RefusalOf(wishes)) {
    ShowShortMessage(refusal);
    return std::nullopt;
  }
  const KeywordFilter keywords(*wishes.keyword_list);
  // An overlong name has been refused.
  ParamPlan plan{HostName::From(*wishes.param_name).value(),
                 {},
                 targets->component_count,
                 targets->models.size()};
  plan.params.reserve(targets->models.size());
  for (const ProMdl model : targets->models) {
    auto target = ReadTarget(model, keywords);
    auto value = target ? batch.value_for(*target) : std::nullopt;
    if (value) plan.params.push_back({std::move(*target), std::move(*value)});
  }
  return plan;
}

void RefreshModelTree() {
  ProMdl current = nullptr;
  if (Ok(ProMdlCurrentGet(&current)) && current != nullptr) ProTreetoolRefresh(current);
}

void Apply(ParamPlan& plan, const ParamBatch& batch) {
  long long applied = 0;
  for (const PlannedParam& param : plan.params) {
    if (batch.apply(param, plan.param_name)) ++applied;
  }
  LogCount("components", plan.component_count);
  LogCount("models", static_cast<long long>(plan.model_count));
  LogCount("worked on", applied);
  RefreshModelTree();
}

}  // namespace

void RunBatch(const DialogView& dialog, const std::optional<CurrentModel>& top,
              const ParamBatch& batch) {
  CommandLog log(batch.log_name);
  const ParamWishes wishes = AskWishes(dialog, batch.fields);
  auto plan = MakePlan(wishes, top, batch);
  if (plan) Apply(*plan, batch);
}

bool WriteText(const PlannedParam& param, HostName& param_name) {
  const ProModelitem& owner = param.target.owner;
  const auto value = HostValue(param.value);
  const auto [function, status] =
      value ? SetOrCreateParameter(owner, param_name, *value) : kTextTooLong;
  if (!Ok(status)) LogFailure(owner.owner, function, status);
  return true;
}

}  // namespace qm
