// Reading of an assembly's structure and of its models' parameters.
#include "export/bill/bill_source.h"

#include <algorithm>

#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/handle_index.h"
#include "frame/models/model_name.h"
#include "frame/models/parameter_text.h"
#include "frame/models/retrieve.h"

namespace qm {
namespace {

// Empty, so that the model is left out of the bill but not its components, when the host does not
// tell the name or the type.
std::wstring NameOf(ProMdl model, ProMdlType type) {
  if (type != PRO_MDL_PART && type != PRO_MDL_ASSEMBLY) return {};
  return ModelName(model).value_or(std::wstring());
}

class StructureReader {
 public:
  StructureReader(const ComponentList& components, BillStructure* structure)
      : components_(components), structure_(*structure) {}

  void Read(ProMdl assembly) {
    // The top assembly's own name is not shown.
    index_.Insert(assembly);
    structure_.models.push_back({{}, PRO_MDL_ASSEMBLY, {}});
    for (int i = 0; i < components_.size(); ++i) {
      if (components_.model(i) == nullptr) continue;
      const uint32_t component = NumberOf(i);
      structure_.occurrences.push_back(component);
      if (components_.repeated(i)) continue;
      const auto [parent, is_new] = index_.Insert(components_.feature(i)->owner);
      if (is_new) structure_.models.emplace_back();
      structure_.models[parent].components.push_back(component);
    }
  }

 private:
  uint32_t NumberOf(int index) {
    const ProMdl model = components_.model(index);
    const auto [number, is_new] = index_.Insert(model);
    const ProMdlType type = components_.type(index);
    if (is_new) structure_.models.push_back({NameOf(model, type), type, {}});
    return number;
  }

  const ComponentList& components_;
  BillStructure& structure_;
  HandleIndex index_;
};

// False when the components cannot be collected.
bool ReadStructure(ProMdl assembly, BillPlan* plan) {
  ComponentList components;
  if (!Ok(CollectComponents(assembly, ComponentKind::kAll, &components))) return false;
  StructureReader(components, &plan->structure).Read(assembly);
  plan->left_out = static_cast<long long>(components.left_out().size());
  return true;
}

BillTexts ReadTexts(const BillModel& model, const std::vector<std::wstring>& parameters) {
  if (model.name.empty()) return {};
  const ProMdl handle = RetrieveModel(model.name, model.type);
  if (handle == nullptr) return {};
  if (IsSkeleton(handle)) return {Listing::kSkeleton, {}};
  if (parameters.empty()) return {Listing::kListed, {}};
  return {Listing::kListed, ParameterTexts(handle, parameters)};
}

// A component whose model's type is not known was counted when it was collected.
bool LacksNameOnly(const BillModel& model) {
  return model.name.empty() && (model.type == PRO_MDL_PART || model.type == PRO_MDL_ASSEMBLY);
}

// How many rows are missing. The summary has none at all for models without a name.
long long CountUnreadRows(const BillPlan& plan, BillKind kind) {
  long long count = std::ranges::count_if(plan.rows, [&](const BillRow& row) {
    const BillModel& model = plan.structure.models[row.model];
    return plan.texts[row.model].listing == Listing::kUnread &&
           (!model.name.empty() || LacksNameOnly(model));
  });
  if (kind == BillKind::kLevels) return count;
  const std::vector<BillModel>& models = plan.structure.models;
  return count + std::count_if(models.begin() + 1, models.end(), &LacksNameOnly);
}

}  // namespace

std::optional<BillPlan> PlanBill(ProMdl assembly, BillKind kind, int depth,
                                 const std::vector<std::wstring>& parameters) {
  BillPlan plan;
  if (!ReadStructure(assembly, &plan)) return std::nullopt;
  plan.rows =
      kind == BillKind::kSummary ? SummaryBill(plan.structure) : LevelBill(plan.structure, depth);
  plan.texts.resize(plan.structure.models.size());
  std::vector<bool> read(plan.texts.size(), false);
  for (const BillRow& row : plan.rows) {
    if (read[row.model]) continue;
    read[row.model] = true;
    plan.texts[row.model] = ReadTexts(plan.structure.models[row.model], parameters);
  }
  plan.left_out += CountUnreadRows(plan, kind);
  return plan;
}

}  // namespace qm
