// QmMerge: the new part comes from the user's start template, under a name that is typed.
#include "assembly/create/merge.h"

#include <optional>
#include <string>

#include "assembly/create/merge_feature.h"
#include "assembly/new_model/new_component.h"
#include "assembly/new_model/start_template.h"
#include "assembly/new_model/typed_copy.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/model_name.h"
#include "frame/models/preselection.h"
#include "frame/models/retrieve.h"

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

// False, after a line in the run log, when the user has erased one of the two at the prompt. The
// host would load a template again that is gone from session, as another model.
bool AreStillThere(ProMdl assembly, ProMdl start, const std::wstring& start_name) {
  if (!IsStillActive(assembly)) {
    LogOutcome("nothing made, the assembly is gone");
    return false;
  }
  if (RetrieveIfThere(start_name, kPartTemplate.type) == start) return true;
  LogOutcome("nothing made, the template is gone");
  return false;
}

NewCopy CopyTemplate(ProMdl start, ProMdl assembly) {
  const auto name = ModelName(start);
  if (!name) {
    LogOutcome("nothing made, a name is not known");
    return {};
  }
  return CopyUnderTypedName(start, kNewName, [&] { return AreStillThere(assembly, start, *name); });
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
  const NewCopy made = assembly ? CopyTemplate(start, *assembly) : NewCopy();
  if (made.model == nullptr) return made.status;
  SaveNewModel(made.model);
  if (const auto component = AssembleAtOrigin(*assembly, made.model)) {
    ConstrainByCsys(*assembly, *component, made.model, kNoCsysInPartTemplate);
  }
  Merge(made.model, *selected);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
