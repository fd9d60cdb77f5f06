// QmMergeTo: the active part is looked up among the components of the model that is shown.
#include "assembly/create/merge_to.h"

#include "assembly/create/merge_feature.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/current_assembly.h"
#include "toolkit/selection.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// Deliberately each of them is called so.
constexpr wchar_t kFeatureName[] = L"合并";
constexpr int kAnyNumber = -1;

ProMdl ActivePart() {
  const auto active = ActiveModel();
  if (active && active->type == PRO_MDL_PART) return active->model;
  ShowMessage(L"\t当前激活的元件不是零件，无法合并\t");
  return nullptr;
}

// The part as the first of its occurrences shows it. Which one that is makes no difference to what
// is merged: the feature is the part's own.
ProMdl FirstOccurrence(ProMdl part) {
  const auto top = CurrentAssembly();
  ComponentList components;
  if (top && Ok(CollectComponents(*top, ComponentKind::kParts, &components))) {
    for (int i = 0; i < components.size(); ++i) {
      if (components.model(i) == part) return components.model(i);
    }
  }
  LogOutcome("nothing merged, the active part is no component of the current model");
  return nullptr;
}

void ShowWindowAnew() {
  int window = 0;
  const ProError told = ProWindowCurrentGet(&window);
  const ProError activated =
      Ok(told) ? (ProWindowRepaint(window), ProWindowRefresh(window), ProWindowActivate(window))
               : told;
  if (!Ok(activated)) LogFailure(std::wstring_view(), "ProWindowActivate", activated);
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
  for (int i = 0; i < count; ++i) MergePart(target, picked[i], kFeatureName);
  LogCount("parts to merge", count);
  ShowWindowAnew();
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
