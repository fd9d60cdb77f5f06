// QmSimRep: reads the structure, asks for a name until the host takes it, makes the representation
// and activates it. What is left out is named branch by branch; all else is kept by default.
#include "assembly/components/sim_rep.h"

#include <algorithm>

#include "assembly/components/sim_rep_rules.h"
#include "frame/guard/filled.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/messages/typed_name.h"
#include "frame/models/current_assembly.h"
#include "frame/models/host_name.h"
#include "frame/models/opening.h"
#include "frame/structure/assembly_levels.h"
#include "frame/structure/preselected_components.h"
#include "frame/text/text.h"
#include "toolkit/owners.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kNothingSelected[] = L"\t请先选择要在简化表示中保留的元件\t";
constexpr char kPrompt[] = "Enter the name of the simplified representation:|||%0w";
constexpr int kLongestName = PRO_NAME_SIZE - 1;

// What the user wants, and what it means for the structure.
struct RepPlan {
  ProMdl root;
  std::vector<LeftOutComponent> left_out;
  long long unread;  // components that nobody could read
};

// Nothing, after the message, when nothing fit is preselected or the structure cannot be read. A
// preselection that cannot be read is not taken for none: `status` tells of it.
std::optional<RepPlan> MakePlan(ProMdl root, ProError* status) {
  const ComponentSelection selection = PreselectedComponents(root);
  if (!selection.is_read) {
    LogOutcome("nothing done, the preselection cannot be read");
    *status = PRO_TK_GENERAL_ERROR;
    return std::nullopt;
  }
  if (selection.components.empty()) {
    ShowMessage(kNothingSelected);
    NoteLeftOut(selection.left_out);
    return std::nullopt;
  }
  ComponentList components;
  if (!Ok(CollectComponents(root, ComponentKind::kAll, &components))) {
    ShowNotCollected();
    return std::nullopt;
  }
  const AssemblyLevels levels(root, components);
  LogCount("kept", static_cast<long long>(selection.components.size()));
  return RepPlan{root, ComponentsToLeaveOut(TreeOf(selection.components), levels.ids()),
                 selection.left_out + static_cast<long long>(components.left_out().size())};
}

ProError FindRep(ProMdl root, HostName& name, ProSimprep* rep) {
  const ProError status = ProSimprepInit(name.name, PRO_VALUE_UNUSED, root, rep);
  return FilledStatus(status, *rep);
}

bool IsTaken(ProMdl root, const std::wstring& name) {
  auto host_name = HostName::From(name);
  ProSimprep rep{};
  return host_name && Ok(FindRep(root, *host_name, &rep));
}

// Nothing when the user quits, or, after a line in the log, when the prompt cannot be shown or
// read: asking again would never end then.
std::optional<std::wstring> AskName(const std::wstring& offered) {
  if (!ShowNamePrompt(kPrompt, offered.c_str())) return std::nullopt;
  const NameReply reply = ReadName(kLongestName);
  return Ok(reply.status) ? std::optional(reply.text) : std::nullopt;
}

// How a step ended: the host's function that decided it, and its status.
struct RepStep {
  const char* function;
  ProError status;
};

RepStep AddItem(const LeftOutComponent& component, ProSimprepdata* data) {
  ProSimprepAction action{};
  ProError status = ProSimprepActionInit(PRO_SIMPREP_EXCLUDE, nullptr, &action);
  status = FilledStatus(status, action);
  if (!Ok(status)) return {"ProSimprepActionInit", status};
  const char* const init = "ProSimprepdataitemInit";
  // The host's table has a fixed size; no path of its own is longer.
  if (component.path.size() > PRO_MAX_ASSEM_LEVEL) return {init, PRO_TK_BAD_INPUTS};
  ProIdTable path = {};
  std::copy(component.path.begin(), component.path.end(), path);
  ProSimprepitem item{};
  status = ProSimprepdataitemInit(path, static_cast<int>(component.path.size()), component.id,
                                  &action, &item);
  status = FilledStatus(status, item);
  if (!Ok(status)) return {init, status};
  return {"ProSimprepdataitemAdd", ProSimprepdataitemAdd(data, PRO_SIMPREP_COMPONENT_ITEM, &item)};
}

// False where a component could not be left out: such a representation is not made.
bool AddItems(const RepPlan& plan, ProSimprepdata* data) {
  for (const LeftOutComponent& component : plan.left_out) {
    const auto [function, status] = AddItem(component, data);
    if (Ok(status)) continue;
    LogFailure("component " + IdPathText(component) + " cannot be left out: " + function +
               " answered " + StatusName(status));
    LogOutcome("nothing done, a component cannot be left out");
    return false;
  }
  return true;
}

enum class Making { kMade, kNameRefused, kFailed };

// A success without a record: the representation is found by its name if there is one.
Making FindMade(ProMdl root, HostName& name, ProSimprep* rep) {
  const ProError status = FindRep(root, name, rep);
  if (Ok(status)) return Making::kMade;
  LogFailure(root, "ProSimprepInit, after a ProSimprepCreate that told nothing,", status);
  LogOutcome("the host has told of a representation that cannot be found");
  return Making::kFailed;
}

Making Make(const RepPlan& plan, const std::wstring& text, ProSimprep* rep) {
  auto name = HostName::From(text);
  if (!name) return Making::kNameRefused;
  SimplifiedRepData data;
  ProError status = ProSimprepdataAlloc(name->name, PRO_B_FALSE, PRO_SIMPREP_INCLUDE, data.put());
  if (Ok(status) && data) {
    if (!AddItems(plan, data.get())) return Making::kFailed;
    status = ProSimprepCreate(plan.root, data.get(), rep);
    if (Ok(status)) return IsFilled(*rep) ? Making::kMade : FindMade(plan.root, *name, rep);
  }
  // Which status a bad name has is not known for sure: the user may try another one, or quit.
  LogEvent("no representation " + ToUtf8(text) + ": the host answered " + StatusName(status));
  return Making::kNameRefused;
}

// Asks until the host has taken a name. A failure is the command's answer: nothing is made then.
ProError MakeByName(const RepPlan& plan, ProSimprep* rep) {
  const auto is_taken = [&](const std::wstring& name) { return IsTaken(plan.root, name); };
  const std::wstring offered = FreeRepName(is_taken).value_or(std::wstring());
  RefusedNames refused;
  while (const auto name = AskName(offered)) {
    if (!IsStillCurrent(plan.root)) {
      LogOutcome("nothing done, the assembly is not current any more");
      return PRO_TK_GENERAL_ERROR;
    }
    const Making made = !name->empty() ? Make(plan, *name, rep) : Making::kNameRefused;
    if (made == Making::kMade) return PRO_TK_NO_ERROR;
    if (made == Making::kFailed) return PRO_TK_GENERAL_ERROR;
    if (!refused.AskAgain(*name)) break;
  }
  LogOutcome("nothing done, no name");
  return PRO_TK_USER_ABORT;
}

}  // namespace

ProError QmSimRep() {
  const auto root = CurrentAssembly();
  if (!root) {
    LogOutcome("nothing done, no current assembly");
    return PRO_TK_NO_ERROR;
  }
  ProError status = PRO_TK_NO_ERROR;
  const auto plan = MakePlan(*root, &status);
  if (!plan) return status;
  ProSimprep rep{};
  status = MakeByName(*plan, &rep);
  if (!Ok(status)) return status;
  LogCount("branches left out", static_cast<long long>(plan->left_out.size()));
  status = ProSimprepActivate(*root, &rep);
  if (!Ok(status)) LogFailure(*root, "ProSimprepActivate", status);
  // Not the box about a name that the host has refused before.
  LogOutcome(Ok(status) ? "the representation is made and active"
                        : "the representation is made, but not active");
  ProTreetoolRefresh(*root);
  ProWindowRepaint(kAllWindows);
  NoteLeftOut(plan->unread);
  return status;
}

}  // namespace qm
