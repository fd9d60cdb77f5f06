// Reads names of models.
#include "frame/models/model_name.h"

#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {

std::optional<std::wstring> ModelName(ProMdl model) {
  ProName name{};
  const ProError status = ProMdlNameGet(model, name);
  if (!Ok(status)) {
    LogFailure(nullptr, "ProMdlNameGet", status);
    return std::nullopt;
  }
  name[PRO_NAME_SIZE - 1] = L'\0';
  return name;
}

}  // namespace qm
