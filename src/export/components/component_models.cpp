// From the component list to models.
#include "export/components/component_models.h"

#include <unordered_set>

#include "frame/messages/message_box.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"

namespace qm {
namespace {

constexpr wchar_t kNoComponents[] = L"当前模型中没有子零件/组件";

// A component without a model is none; one whose type or name is not known would get a wrong file.
void AddModel(ProMdl model, ProMdlType type, ComponentModels* found) {
  const bool is_assembly = type == PRO_MDL_ASSEMBLY;
  if (!is_assembly && type != PRO_MDL_PART) {
    ++found->left_out;
    return;
  }
  if (!is_assembly && IsSkeleton(model)) return;
  auto name = ModelName(model);
  if (name) {
    found->models.push_back({model, std::move(*name), is_assembly});
  } else {
    ++found->left_out;
  }
}

}  // namespace

std::optional<ComponentModels> OpenComponents() {
  const Opening opening = OpenCurrentAssembly(ComponentsOf(ComponentKind::kAll), kNoComponents);
  if (opening.components.empty()) return std::nullopt;
  ComponentModels found;
  found.left_out = opening.left_out;
  std::unordered_set<ProMdl> seen = {nullptr, opening.root};
  for (int i = 0; i < opening.components.size(); ++i) {
    const ProMdl model = opening.components.model(i);
    if (seen.insert(model).second) AddModel(model, opening.components.type(i), &found);
  }
  if (!found.models.empty() || found.left_out > 0) return found;
  ShowShortMessage(kNoComponents);
  return std::nullopt;
}

}  // namespace qm
