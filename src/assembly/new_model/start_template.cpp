// Loads templates by the host's configuration.
#include "assembly/new_model/start_template.h"

#include <string>

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "toolkit/owners.h"
#include "toolkit/window.h"

namespace qm {
namespace {

ProMdl Load(const StartTemplate& start) {
  auto option = HostName::From(start.option);
  HostArray<ProPath> values;
  const ProError told = ProConfigoptArrayGet(option->name, values.put());
  if (!Ok(told) || values.size() < 1) {
    LogEvent(std::string("no template: ProConfigoptArrayGet answered ") + StatusName(told));
    return nullptr;
  }
  ProMdl model = nullptr;
  const ProError loaded = ProMdlLoad(values[0], start.type, PRO_B_FALSE, &model);
  if (Ok(loaded) && model != nullptr) return model;
  LogEvent(std::string("no template: ProMdlLoad answered ") + StatusName(loaded));
  return nullptr;
}

}  // namespace

ProMdl LoadTemplate(const StartTemplate& start) {
  const ProMdl model = Load(start);
  if (model == nullptr) ShowMessage(start.not_loaded);
  return model;
}

}  // namespace qm
