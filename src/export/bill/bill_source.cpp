// Reading of an assembly's structure and of its models' parameters.
#include "export/bill/bill_source.h"

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

// A host that does not tell gives a row too many rather than too few.
bool IsSkeleton(ProMdl model) {
  ProBoolean is_skeleton = PRO_B_FALSE;
  const ProError status = ProMdlIsSkeleton(model, &is_skeleton);
  if (!Ok(status)) LogFailure(model, "ProMdlIsSkeleton", status);
  return Ok(status) && is_skeleton == PRO_B_TRUE;
}

std::optional<BillStructure> ReadStructure(ProMdl assembly) {
  ComponentList components;
  if (!Ok(CollectComponents(assembly, ComponentKind::kAll, &components))) return std::nullopt;
  BillStructure structure;
  StructureReader(components, &structure).Read(assembly);
  return structure;
}

BillTexts ReadTexts(const BillModel& model, const std::vector<std::wstring>& parameters) {
  if (model.name.empty()) return {};
  const ProMdl handle = RetrieveModel(model.name, model.type);
  if (handle == nullptr || IsSkeleton(handle)) return {};
  if (parameters.empty()) return {true, {}};
  return {true, ParameterTexts(handle, parameters)};
}

}  // namespace

std::optional<BillPlan> PlanBill(ProMdl assembly, BillKind kind, int depth,
                                 const std::vector<std::wstring>& parameters) {
  auto structure = ReadStructure(assembly);
  if (!structure) return std::nullopt;
  BillPlan plan{std::move(*structure), {}, {}};
  plan.rows =
      kind == BillKind::kSummary ? SummaryBill(plan.structure) : LevelBill(plan.structure, depth);
  plan.texts.resize(plan.structure.models.size());
  std::vector<bool> read(plan.texts.size(), false);
  for (const BillRow& row : plan.rows) {
    if (read[row.model]) continue;
    read[row.model] = true;
    plan.texts[row.model] = ReadTexts(plan.structure.models[row.model], parameters);
  }
  return plan;
}

}  // namespace qm
