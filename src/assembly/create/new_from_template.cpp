// The procedure of NewPart, NewAsm and NewSmt.
#include "assembly/create/new_from_template.h"

#include <optional>
#include <string>

#include "assembly/new_model/free_name.h"
#include "assembly/new_model/model_copy.h"
#include "assembly/new_model/new_component.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/model_name.h"
#include "frame/settings/config.h"
#include "frame/text/letter_case.h"
#include "frame/text/list_rules.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// What is to be made, and where.
struct NewJob {
  ProMdl model;  // the template
  ProAssembly assembly;
};

std::optional<ProMdl> AssemblyForNew() {
  const auto assembly = AssemblyOf(ActiveModel());
  if (!assembly) ShowMessage(L"\t当前激活元件不是组件/制造,无法进行新建装配操作\t");
  return assembly;
}

std::optional<NewJob> Prepare(const NewKind& kind) {
  const auto file = TemplateFile(kind.start);
  if (!file) return std::nullopt;
  ProMdl model = kind.loads_first ? LoadTemplate(kind.start, *file) : nullptr;
  if (kind.loads_first && model == nullptr) return std::nullopt;
  const auto assembly = AssemblyForNew();
  if (!assembly) return std::nullopt;
  if (!kind.loads_first) model = LoadTemplate(kind.start, *file);
  if (model == nullptr) return std::nullopt;
  return NewJob{model, *assembly};
}

// Null, after a line in the run log or a message, when there is none.
ProMdl MakeModel(const NewKind& kind, const NewJob& job) {
  const auto assembly_name = ModelName(job.assembly);
  if (!assembly_name) {
    LogOutcome("nothing made, the assembly's name is not known");
    return nullptr;
  }
  const auto name = FindFreeName(NamingBelow(*assembly_name, kind.start.type), kLongestNewName);
  if (!name) return nullptr;
  const ProMdl made = CopyModel(job.model, *name);
  if (made == nullptr) {
    LogOutcome("nothing assembled, there is no copy of the template");
    return nullptr;
  }
  SaveNewModel(made);
  return made;
}

bool WantsConstraint(const NewKind& kind) {
  const auto value = TryReadSetting(kind.section, kValueKey, ConfigPath(kConfigFile));
  if (!value) LogFailure("QmConfig.ini cannot be read: the component is not constrained");
  return value && EqualIgnoringCase(WithoutBlanks(*value), L"1");
}

}  // namespace

ProError MakeNew(const NewKind& kind) {
  const auto job = Prepare(kind);
  if (!job) return PRO_TK_NO_ERROR;
  const ProMdl made = MakeModel(kind, *job);
  if (made == nullptr) return PRO_TK_NO_ERROR;
  const auto component = AssembleAtOrigin(job->assembly, made);
  if (!component || !WantsConstraint(kind)) return PRO_TK_NO_ERROR;
  // Deliberately the tree is refreshed only behind a constraint.
  if (ConstrainByCsys(job->assembly, *component, made, kind.no_csys)) {
    const ProError refreshed = ProTreetoolRefresh(job->assembly);
    if (!Ok(refreshed)) LogFailure(job->assembly, "ProTreetoolRefresh", refreshed);
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
