// Loads templates by the host's configuration.
#include "assembly/new_model/start_template.h"

#include <string>

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "toolkit/owners.h"
#include "toolkit/window.h"

namespace qm {

std::optional<std::wstring> TemplateFile(const StartTemplate& start) {
  auto option = HostName::From(start.option);
  HostArray<ProPath> values;
  const ProError told = ProConfigoptArrayGet(option->name, values.put());
  if (Ok(told) && values.size() > 0) return std::wstring(FixedText(values[0]));
  LogEvent(std::string("no template: ProConfigoptArrayGet answered ") + StatusName(told));
  ShowMessage(start.not_loaded);
  return std::nullopt;
}

ProMdl LoadTemplate(const StartTemplate& start, const std::wstring& file) {
  ProPath path = {};
  ProMdl model = nullptr;
  const bool fits = FillFixedText(file, path);
  const ProError loaded =
      fits ? ProMdlLoad(path, start.type, PRO_B_FALSE, &model) : PRO_TK_LINE_TOO_LONG;
  if (Ok(loaded) && model != nullptr) return model;
  LogEvent(std::string("no template: ProMdlLoad answered ") + StatusName(loaded));
  ShowMessage(start.not_loaded);
  return nullptr;
}

}  // namespace qm
