// QmMergeTo: the active part is looked up among the components of the model that is shown.
#include "assembly/create/merge_to.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "assembly/create/merge_feature.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/current_assembly.h"
#include "frame/models/handle_index.h"
#include "frame/models/model_name.h"
#include "frame/text/letter_case.h"
#include "frame/text/model_record_rules.h"
#include "toolkit/assembly.h"
#include "toolkit/selection.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// Deliberately each of them is called so.
constexpr wchar_t kFeatureName[] = L"合并";
constexpr int kAnyNumber = -1;
constexpr wchar_t kPartEnd[] = L".prt";

// Whether the host has done it; else the run log says so.
bool Done(const char* function, ProError status) {
  if (!Ok(status)) LogFailure(std::wstring_view(), function, status);
  return Ok(status);
}

ProMdl ActivePart() {
  const auto active = ActiveModel();
  if (active && active->type == PRO_MDL_PART) return active->model;
  ShowMessage(L"\t当前激活的元件不是零件，无法合并\t");
  return nullptr;
}

// "bolt.prt" as the host's record of a part has it, and made of the name where the record does not
// say. Nothing, after a line in the run log, where not even the name is told.
std::optional<std::wstring> FileOf(ProMdl part) {
  const auto name = ModelName(part);
  if (!name) return std::nullopt;
  ProMdldata data = {};
  const ProError status = ProMdlDataGet(part, &data);
  if (!Ok(status)) {
    LogFailure(part, "ProMdlDataGet", status);
    return *name + kPartEnd;
  }
  const std::wstring_view record(data.texts, std::size(data.texts));
  return FileInModelRecord(record, *name).value_or(*name + kPartEnd);
}

bool IsFile(ProMdl part, const std::wstring& file) {
  const auto own = FileOf(part);
  return own && EqualIgnoringCase(*own, file);
}

// Index of the first part with this file. Each model is asked once, however often it is placed.
std::optional<int> FirstWith(const std::wstring& file, const ComponentList& components) {
  HandleIndex asked;
  for (int i = 0; i < components.size(); ++i) {
    const ProMdl model = components.model(i);
    const bool is_new = components.type(i) == PRO_MDL_PART && asked.Insert(model).second;
    if (is_new && IsFile(model, file)) return i;
  }
  return std::nullopt;
}

// Feature ids from the top model down to a component. The assembly that holds it is the last one
// before it in the list; none when the list has a gap there.
std::vector<int> WayTo(int index, const ComponentList& components, ProMdl top) {
  std::vector<int> ids;
  for (int at = index; at >= 0;) {
    const ProFeature& placed = *components.feature(at);
    ids.push_back(placed.id);
    if (placed.owner == top) {
      std::ranges::reverse(ids);
      return ids;
    }
    --at;
    while (at >= 0 && components.model(at) != placed.owner) --at;
  }
  return {};
}

// The model at the end of the way; the list's own where no path of the host is long enough.
ProMdl ModelOf(int index, const ComponentList& components, ProMdl top) {
  const std::vector<int> way = WayTo(index, components, top);
  if (way.empty() || way.size() > PRO_MAX_ASSEM_LEVEL) return components.model(index);
  ProIdTable ids = {};
  std::ranges::copy(way, ids);
  ProAsmcomppath path = {};
  const ProError made = ProAsmcomppathInit(top, ids, static_cast<int>(way.size()), &path);
  if (!Done("ProAsmcomppathInit", made) || path.owner == nullptr) return nullptr;
  ProMdl model = nullptr;
  return Done("ProAsmcomppathMdlGet", ProAsmcomppathMdlGet(&path, &model)) ? model : nullptr;
}

// The part as the first of its occurrences in the current model shows it.
ProMdl FirstOccurrence(ProMdl part) {
  const auto file = FileOf(part);
  if (!file) {
    LogOutcome("nothing merged, the active part's file is not known");
    return nullptr;
  }
  const auto top = CurrentAssembly();
  ComponentList components;
  const bool is_read = top && Ok(CollectComponents(*top, ComponentKind::kAll, &components));
  const auto index = is_read ? FirstWith(*file, components) : std::nullopt;
  const ProMdl target = index ? ModelOf(*index, components, *top) : nullptr;
  if (target == nullptr) {
    LogOutcome("nothing merged, the active part is not found in the current model");
  }
  return target;
}

void ShowWindowAnew() {
  int window = 0;
  if (!Done("ProWindowCurrentGet", ProWindowCurrentGet(&window))) return;
  Done("ProWindowRepaint", ProWindowRepaint(window));
  Done("ProWindowRefresh", ProWindowRefresh(window));
  Done("ProWindowActivate", ProWindowActivate(window));
}

}  // namespace

ProError QmMergeTo() {
  const ProMdl part = ActivePart();
  const ProMdl target = part != nullptr ? FirstOccurrence(part) : nullptr;
  if (target == nullptr) return PRO_TK_NO_ERROR;
  DisplayNote("Please select parts to be merged:");
  ProSelection* picked = nullptr;
  int count = 0;
  const ProError status =
      ProSelect("part", kAnyNumber, nullptr, nullptr, nullptr, nullptr, &picked, &count);
  if (!Ok(status) || picked == nullptr || count < 1) {
    LogOutcome("nothing merged, nothing picked");
    return PRO_TK_NO_ERROR;
  }
  // The user may have erased it while he was picking.
  if (!IsStillActive(part)) {
    LogOutcome("nothing merged, the active part is gone");
    return PRO_TK_GENERAL_ERROR;
  }
  for (int i = 0; i < count; ++i) MergePart(target, picked[i], kFeatureName);
  LogCount("parts to merge", count);
  ShowWindowAnew();
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
