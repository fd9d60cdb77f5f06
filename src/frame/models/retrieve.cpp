// Retrieval of models by name.
#include "frame/models/retrieve.h"

#include <string>

#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

ProError Retrieve(std::wstring_view name, ProMdlType type, ProMdl* model) {
  auto host_name = RetrievalName::From(name);
  return host_name ? ProMdlRetrieve(host_name->name, type, model) : PRO_TK_LINE_TOO_LONG;
}

ProMdl Told(std::wstring_view name, ProMdl model, ProError status) {
  if (Ok(status) && model != nullptr) return model;
  LogFailure("ProMdlRetrieve of " + ToUtf8(name) + " answered " + StatusName(status));
  return nullptr;
}

}  // namespace

ProMdl RetrieveModel(std::wstring_view name, ProMdlType type) {
  ProMdl model = nullptr;
  const ProError status = Retrieve(name, type, &model);
  return Told(name, model, status);
}

ProMdl RetrieveIfThere(std::wstring_view name, ProMdlType type) {
  ProMdl model = nullptr;
  const ProError status = Retrieve(name, type, &model);
  return status == PRO_TK_E_NOT_FOUND ? nullptr : Told(name, model, status);
}

}  // namespace qm
