// The choice by box and its hand-over to the selection buffer.
#include "frame/commands/box_selection.h"

#include <string>

#include "frame/messages/run_log.h"
#include "toolkit/owners.h"
#include "toolkit/selection.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr int kAnyNumber = -1;

// The user draws boxes: no confirmation wanted, menu and box allowed.
constexpr ProSelectionEnvOption kBoxOptions[] = {
    {PRO_SELECT_DONE_REQUIRED, 0},
    {PRO_SELECT_BY_MENU_ALLOWED, 1},
    {PRO_SELECT_BY_BOX_ALLOWED, 1},
};

ProError AllocateBoxEnvironment(SelectionEnvironment* environment) {
  HostArray<ProSelectionEnvOption> options;
  ProError status = options.Allocate();
  for (const ProSelectionEnvOption& option : kBoxOptions) {
    if (Ok(status)) status = options.Append(option);
  }
  if (!Ok(status)) return status;
  status = ProSelectionEnvAlloc(options.get(), environment->put());
  return Ok(status) && !*environment ? PRO_TK_GENERAL_ERROR : status;
}

}  // namespace

ProError PreselectByBox(const char* filter) {
  SelectionEnvironment environment;
  ProError status = AllocateBoxEnvironment(&environment);
  if (!Ok(status)) return status;
  ProSelection* selections = nullptr;
  int count = 0;
  status = ProSelect(filter, kAnyNumber, nullptr, nullptr, environment.get(), nullptr, &selections,
                     &count);
  if (!Ok(status)) return status;
  if (count < 0 || (count > 0 && selections == nullptr)) return PRO_TK_USER_ABORT;
  ProSelbufferClear();
  for (int i = 0; i < count; ++i) {
    if (selections[i] == nullptr) continue;
    status = ProSelbufferSelectionAdd(selections[i]);
    if (!Ok(status))
      LogFailure(std::string("not selected, the host answered ") + StatusName(status));
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
