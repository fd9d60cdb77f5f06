// Asks, plans and applies for the buttons of the parameter dialog.
#include "params/param_batch.h"

#include <vector>

#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "params/param_value_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// What the user wants, as the fields say it; nothing where one cannot be read.
struct ParamWishes {
  std::string class_name;  // the group always has a selection: empty, it cannot be read
  std::optional<std::wstring> param_name;
  std::optional<std::wstring> keyword_list;
};

struct ParamPlan {
  HostName param_name;
  std::vector<PlannedParam> params;  // in the order of the targets
  int component_count;
  size_t model_count;
  long long left_out;  // components and models that cannot be read
};

ParamWishes AskWishes(const DialogView& dialog, const StoredFields& fields,
                      const BatchFields& asked) {
  return {dialog.TryRadioValue(asked.class_radio).value_or(std::string()),
          fields.Value(dialog, asked.name), fields.Value(dialog, asked.keywords)};
}

// Why the wishes cannot be fulfilled; null when they can.
const wchar_t* RefusalOf(const ParamWishes& wishes) {
  if (!wishes.param_name) return kUnreadableField;
  const wchar_t* const refusal = ParamNameRefusal(*wishes.param_name);
  if (refusal != nullptr) return refusal;
  return wishes.keyword_list ? nullptr : kUnreadableField;
}

// Adds the model with its value, unless it is excluded or left alone, or, after a line in the log,
// cannot be read.
void PlanModel(ProMdl model, const KeywordFilter& keywords, const ParamBatch& batch,
               ParamPlan* plan) {
  auto target = ReadTarget(model, keywords, &plan->left_out);
  if (!target) return;
  auto [value, is_known] = batch.value_for(*target);
  if (!is_known) ++plan->left_out;
  if (value) plan->params.push_back({std::move(*target), std::move(*value)});
}

// Nothing, after the message, when there is nothing to plan.
std::optional<ParamPlan> MakePlan(const ParamWishes& wishes, const std::optional<CurrentModel>& top,
                                  const ParamBatch& batch) {
  if (wishes.class_name.empty()) {
    ShowShortMessage(kUnreadableField);
    return std::nullopt;
  }
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
                 targets->models.size(),
                 targets->left_out};
  plan.params.reserve(targets->models.size());
  for (const ProMdl model : targets->models) PlanModel(model, keywords, batch, &plan);
  return plan;
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
  NoteLeftOut(plan.left_out);
}

}  // namespace

void RunBatch(const DialogView& dialog, const StoredFields& fields,
              const std::optional<CurrentModel>& top, const ParamBatch& batch) {
  const ParamWishes wishes = AskWishes(dialog, fields, batch.fields);
  auto plan = MakePlan(wishes, top, batch);
  if (plan) Apply(*plan, batch);
}

bool WriteText(const PlannedParam& param, HostName& param_name) {
  const ProModelitem& owner = param.target.owner;
  const auto value = HostValue(param.value);
  const auto [function, status] =
      value ? SetOrCreateParameter(owner, param_name, *value) : kTextTooLong;
  if (!Ok(status)) LogFailure(param.target.name, function, status);
  return Ok(status);
}

}  // namespace qm
