// Reading of parameter values as texts.
#include "frame/models/parameter_text.h"

#include "frame/messages/run_log.h"
#include "frame/models/parameters.h"
#include "frame/text/value_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

std::wstring ValueText(const ProParamvalue& value) {
  switch (value.type) {
    case PRO_PARAM_STRING:
      return std::wstring(FixedText(value.value.s_val));
    case PRO_PARAM_INTEGER:
      return std::to_wstring(value.value.i_val);
    case PRO_PARAM_DOUBLE:
      return RealText(value.value.d_val);
    case PRO_PARAM_BOOLEAN:
      return BooleanText(value.value.l_val);
    default:
      return {};
  }
}

std::optional<std::wstring> ParameterText(const ProModelitem& owner, const std::wstring& name) {
  auto host_name = HostName::From(name);
  // No parameter has a longer name.
  if (!host_name) return std::wstring();
  const ReadValue read = ReadParameter(owner, *host_name);
  if (!read.is_known) return std::nullopt;
  return read.value ? ValueText(*read.value) : std::wstring();
}

}  // namespace

std::vector<std::optional<std::wstring>> ParameterTexts(ProMdl model,
                                                        const std::vector<std::wstring>& names) {
  std::vector<std::optional<std::wstring>> texts(names.size());
  ProModelitem item{};
  const ProError status = ProMdlToModelitem(model, &item);
  if (!Ok(status) || item.owner == nullptr) {
    LogFailure(model, "ProMdlToModelitem", status);
    return texts;
  }
  for (size_t i = 0; i < names.size(); ++i) texts[i] = ParameterText(item, names[i]);
  return texts;
}

}  // namespace qm
