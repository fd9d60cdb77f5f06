// Asks the host.
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

bool IsSkeleton(ProMdl model) {
  ProBoolean is_skeleton = PRO_B_FALSE;
  const ProError status = ProMdlIsSkeleton(model, &is_skeleton);
  if (!Ok(status)) LogFailure(model, "ProMdlIsSkeleton", status);
  return Ok(status) && is_skeleton == PRO_B_TRUE;
}

}  // namespace qm
