// QmMerge: the new part comes from the user's start template, under a name that is typed.
#include "assembly/create/merge.h"

#include <optional>

#include "assembly/create/merge_feature.h"
#include "assembly/new_model/model_copy.h"
#include "assembly/new_model/new_component.h"
#include "assembly/new_model/start_template.h"
#include "assembly/new_model/typed_copy.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/preselection.h"

namespace qm {
namespace {

// Deliberately each of them is called so.
constexpr wchar_t kFeatureName[] = L"合并1";
// Without the default that the cloning commands offer.
constexpr NamePrompt kNewName = {"USER Enter a new name: ", nullptr, 1};

std::optional<Preselected> ReadParts() {
  auto selected = ReadPreselection();
  if (!selected) ShowMessage(L"\t请先选择需要合并的零件(不支持组件)\t");
  return selected;
}

// A host would take a part for an assembly here, with whatever comes of it.
std::optional<ProMdl> AssemblyForMerge() {
  const auto assembly = AssemblyOf(ActiveModel());
  if (!assembly) LogOutcome("nothing made, the active model is no assembly");
  return assembly;
}

void Merge(ProSolid target, const Preselected& selected) {
  int merged = 0;
  for (int i = 0; i < selected.size(); ++i) {
    const auto item = ItemOf(selected[i]);
    if (!item || item->type != PRO_PART) continue;
    MergePart(target, selected[i], kFeatureName);
    ++merged;
  }
  LogCount("parts to merge", merged);
}

}  // namespace

ProError QmMerge() {
  const auto file = TemplateFile(kPartTemplate);
  const ProMdl start = file ? LoadTemplate(kPartTemplate, *file) : nullptr;
  if (start == nullptr) return PRO_TK_NO_ERROR;
  const auto selected = ReadParts();
  const auto assembly = selected ? AssemblyForMerge() : std::nullopt;
  const ProMdl made = assembly ? CopyUnderTypedName(start, kNewName) : nullptr;
  if (made == nullptr) return PRO_TK_NO_ERROR;
  SaveNewModel(made);
  if (const auto component = AssembleAtOrigin(*assembly, made)) {
    ConstrainByCsys(*assembly, *component, made, kNoCsysInPartTemplate);
  }
  Merge(made, *selected);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
