// Retrieval of models by name.
#include "frame/models/retrieve.h"

#include <string>

#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {

ProMdl RetrieveModel(std::wstring_view name, ProMdlType type) {
  auto host_name = RetrievalName::From(name);
  ProMdl model = nullptr;
  const ProError status =
      host_name ? ProMdlRetrieve(host_name->name, type, &model) : PRO_TK_LINE_TOO_LONG;
  if (Ok(status) && model != nullptr) return model;
  LogEvent("ProMdlRetrieve of " + ToUtf8(name) + " answered " + StatusName(status));
  return nullptr;
}

}  // namespace qm
