// Copies and saves.
#include "assembly/new_model/model_copy.h"

#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "toolkit/status.h"

namespace qm {

ProMdl CopyModel(ProMdl source, const std::wstring& name) {
  auto host_name = HostName::From(name);
  ProMdl copy = nullptr;
  const ProError status =
      host_name ? ProMdlCopy(source, host_name->name, &copy) : PRO_TK_LINE_TOO_LONG;
  if (Ok(status) && copy != nullptr) return copy;
  LogFailure(name, "ProMdlCopy", status);
  return nullptr;
}

void SaveNewModel(ProMdl model) {
  const ProError status = ProMdlSave(model);
  if (!Ok(status)) LogFailure(model, "ProMdlSave", status);
}

}  // namespace qm
