// Reads names of models.
#include "frame/models/model_name.h"

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/status.h"

namespace qm {

std::optional<std::wstring> ModelName(ProMdl model) {
  ProName name{};
  const ProError status = ProMdlNameGet(model, name);
  // No model is without a name.
  if (!Ok(status) || name[0] == L'\0') {
    LogFailure(nullptr, "ProMdlNameGet", status);
    return std::nullopt;
  }
  return std::wstring(FixedText(name));
}

}  // namespace qm
