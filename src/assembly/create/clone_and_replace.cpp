// CloneAndReplace: the host itself replaces the component, by a macro that runs when the command
// has ended and finds the copy's file in the working directory.
#include "assembly/create/clone_and_replace.h"

#include <optional>
#include <string>

#include "assembly/create/clone.h"
#include "assembly/create/replace_macro_rules.h"
#include "frame/guard/host_release.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "toolkit/command.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// Deliberately asked twice for a typed name, of which the second one counts.
constexpr int kRepliesToAPrompt = 2;

// The component's feature in the assembly that it lies in; none for the top model itself.
std::optional<ProAsmcomp> ComponentOf(ProSelection selection) {
  ProAsmcomppath path = {};
  if (!Ok(ProSelectionAsmcomppathGet(selection, &path)) || path.owner == nullptr) return {};
  if (path.table_num < 1 || path.table_num > PRO_MAX_ASSEM_LEVEL) return {};
  const int id = path.comp_id_table[--path.table_num];
  ProMdl owner = nullptr;
  if (!Ok(ProAsmcomppathMdlGet(&path, &owner)) || owner == nullptr) return {};
  return ProAsmcomp{PRO_FEATURE, id, owner};
}

// Deliberately read and not used: the command has always asked for them.
void ReadConstraints(ProSelection selection) {
  auto component = ComponentOf(selection);
  ConstraintArray constraints;
  if (component) ProAsmcompConstraintsGet(&*component, constraints.put());
}

std::optional<std::wstring> FileOf(ProMdl copy) {
  ProMdlType type = PRO_MDL_UNUSED;
  const auto name = ModelName(copy);
  const ProError status = name ? ProMdlTypeGet(copy, &type) : PRO_TK_GENERAL_ERROR;
  const bool is_component = type == PRO_MDL_PART || type == PRO_MDL_ASSEMBLY;
  if (name && Ok(status) && is_component) return ReplacingFile(*name, type);
  LogOutcome("nothing replaced, the copy's file is not known");
  return std::nullopt;
}

void QueueReplacing(const std::wstring& file) {
  // The host takes it as changeable text.
  std::wstring macro = ReplaceMacro(HostRelease(), file);
  const ProError status = ProMacroLoad(macro.data());
  if (Ok(status)) return;
  LogFailure(file, "ProMacroLoad", status);
  LogOutcome("nothing replaced, the host takes no macro");
}

}  // namespace

ProError CloneAndReplace() {
  const auto job = PrepareClone();
  const NewCopy copy = job ? MakeClone(*job, kRepliesToAPrompt) : NewCopy();
  if (copy.model == nullptr) return copy.status;
  ReadConstraints(job->selected[0]);
  if (const auto file = FileOf(copy.model)) QueueReplacing(*file);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
