// Chooses the model of a drawing.
#include "drawing/create/chosen_model.h"

#include "frame/messages/message_box.h"
#include "frame/models/preselection.h"
#include "toolkit/assembly.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kPartOrAssembly[] = L"当前模式仅可选择零件或者组件";

bool IsPartOrAssembly(const ProModelitem& item) {
  return item.type == PRO_PART || item.type == PRO_ASSEMBLY;
}

}  // namespace

ChosenModel ChooseModel(Selectable selectable) {
  ChosenModel chosen;
  const auto selected = ReadPreselection();
  if (!selected) {
    if (!Ok(ProMdlCurrentGet(&chosen.model))) chosen.model = nullptr;
    return chosen;
  }
  if (selected->size() != 1) return {nullptr, kOnlyOne};
  auto item = ItemOf((*selected)[0]);
  if (!item) return {};
  if (selectable == Selectable::kPartsAndAssemblies && !IsPartOrAssembly(*item)) {
    return {nullptr, kPartOrAssembly};
  }
  if (!Ok(ProModelitemMdlGet(&*item, &chosen.model))) chosen.model = nullptr;
  return chosen;
}

ProMdl WithoutManufacturing(ProMdl model) {
  ProMdlType type = PRO_MDL_UNUSED;
  if (!Ok(ProMdlTypeGet(model, &type))) return nullptr;
  if (type != PRO_MDL_MFG) return model;
  ProAssembly assembly = nullptr;
  return Ok(ProMfgAssemGet(model, &assembly)) ? assembly : nullptr;
}

ProMdl ChooseModelToDraw() {
  const ChosenModel chosen = ChooseModel(Selectable::kAll);
  if (chosen.refusal != nullptr) ShowMessage(chosen.refusal);
  return chosen.model != nullptr ? WithoutManufacturing(chosen.model) : nullptr;
}

}  // namespace qm
