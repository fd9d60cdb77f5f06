// Looks at the selection, and makes the copy.
#include "assembly/create/clone.h"

#include <string>

#include "assembly/new_model/free_name.h"
#include "assembly/new_model/typed_copy.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/current_assembly.h"
#include "frame/models/model_name.h"
#include "frame/settings/config.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// The one selected item, which is a part or an assembly.
std::optional<ProModelitem> ComponentItem(const Preselected& selected) {
  if (selected.size() != 1) {
    ShowMessage(L"\t当前模式只能选择1个元件\t");
    return std::nullopt;
  }
  const auto item = ItemOf(selected[0]);
  if (item && (item->type == PRO_ASSEMBLY || item->type == PRO_PART)) return item;
  ShowMessage(L"\t当前模式只能选择零件或组件\t");
  return std::nullopt;
}

ProMdl ModelOf(ProModelitem item) {
  ProMdl model = nullptr;
  const ProError status = ProModelitemMdlGet(&item, &model);
  if (Ok(status) && model != nullptr) return model;
  LogFailure(std::wstring_view(), "ProModelitemMdlGet", status);
  LogOutcome("nothing made, the selected model is not known");
  return nullptr;
}

std::optional<CloneMode> ReadMode() {
  const auto value = TryReadSetting(L"CompCopyAutoNum", kValueKey, ConfigPath(kConfigFile));
  if (!value) {
    LogOutcome("nothing made, QmConfig.ini cannot be read");
    return std::nullopt;
  }
  const auto mode = CloneModeOf(*value);
  if (!mode) LogOutcome("nothing made, the setting CompCopyAutoNum names no mode");
  return mode;
}

// Nothing when the host does not tell the name that it begins with.
std::optional<NewNaming> NamingOf(const CloneJob& job) {
  const bool by_assembly = job.mode == CloneMode::kByAssembly;
  const auto name = ModelName(by_assembly ? job.assembly : job.source);
  if (!name) {
    LogOutcome("nothing made, a name is not known");
    return std::nullopt;
  }
  return by_assembly ? NamingBelow(*name, job.source_type) : NamingAfterComponent(*name);
}

// A name that no longer fits the host would be free for ever.
ProMdl CopyUnderFreeName(const CloneJob& job) {
  const auto naming = NamingOf(job);
  const auto name = naming ? FindFreeName(*naming, kLongestHostName) : std::nullopt;
  if (!name) return nullptr;
  const ProMdl copy = CopyModel(job.source, *name);
  if (copy == nullptr) LogOutcome("nothing done with the copy, since there is none");
  return copy;
}

// False, after a line in the run log, when the user has erased at the prompt what the copy is for,
// or what it is made of.
bool IsStillThere(const CloneJob& job) {
  if (!IsStillActive(job.assembly)) {
    LogOutcome("nothing made, the assembly is gone");
    return false;
  }
  const auto item = ItemOf(job.selected[0]);
  if (item && ModelOf(*item) == job.source) return true;
  LogOutcome("nothing made, the selected model is gone");
  return false;
}

NewCopy CopyByUser(const CloneJob& job, int replies) {
  const auto name = ModelName(job.source);
  if (!name) {
    LogOutcome("nothing made, a name is not known");
    return {};
  }
  return CopyUnderTypedName(job.source, {"USER Enter a new name:|||%0w", name->c_str(), replies},
                            [&] { return IsStillThere(job); });
}

}  // namespace

std::optional<CloneJob> PrepareClone() {
  auto selected = ReadPreselection();
  if (!selected) {
    ShowMessage(L"\t请先选择需要克隆的元件\t");
    return std::nullopt;
  }
  const auto item = ComponentItem(*selected);
  if (!item) return std::nullopt;
  const auto assembly = AssemblyOf(ActiveModel());
  if (!assembly) {
    ShowMessage(L"\t当前被激活的模型不是组件/制造,无法克隆装配\t");
    return std::nullopt;
  }
  const ProMdl source = ModelOf(*item);
  const auto mode = source != nullptr ? ReadMode() : std::nullopt;
  if (!mode) return std::nullopt;
  const auto type = static_cast<ProMdlType>(item->type);
  return CloneJob{std::move(*selected), source, type, *assembly, *mode};
}

NewCopy MakeClone(const CloneJob& job, int replies) {
  const NewCopy copy =
      job.mode == CloneMode::kByUser ? CopyByUser(job, replies) : NewCopy{CopyUnderFreeName(job)};
  if (copy.model != nullptr) SaveNewModel(copy.model);
  return copy;
}

}  // namespace qm
