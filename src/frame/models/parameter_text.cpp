// Reading of parameter values as texts.
#include "frame/models/parameter_text.h"

#include "frame/messages/run_log.h"
#include "frame/models/parameters.h"
#include "frame/text/value_rules.h"
#include "toolkit/status.h"

namespace qm {
namespace {

std::optional<std::wstring> ValueText(const ProParamvalue& value) {
  switch (value.type) {
    case PRO_PARAM_STRING:
      return std::wstring(FixedText(value.value.s_val));
    case PRO_PARAM_INTEGER:
      return std::to_wstring(value.value.i_val);
    case PRO_PARAM_DOUBLE:
      return RealText(value.value.d_val);
    case PRO_PARAM_BOOLEAN: {
      std::wstring text = BooleanText(value.value.l_val);
      return text.empty() ? std::nullopt : std::optional(std::move(text));
    }
    default:
      return std::nullopt;
  }
}

ParameterText TextOf(const ProModelitem& owner, const std::wstring& name) {
  auto host_name = HostName::From(name);
  // No parameter has a longer name.
  if (!host_name) return {};
  const ReadValue read = ReadParameter(owner, *host_name);
  return {read.value ? ValueText(*read.value) : std::nullopt, read.is_known};
}

}  // namespace

std::vector<ParameterText> ReadParameterTexts(ProMdl model,
                                              const std::vector<std::wstring>& names) {
  if (names.empty()) return {};
  ProModelitem item{};
  const ProError status = ProMdlToModelitem(model, &item);
  if (!Ok(status) || item.owner == nullptr) {
    LogFailure(model, "ProMdlToModelitem", status);
    return std::vector<ParameterText>(names.size(), {std::nullopt, false});
  }
  std::vector<ParameterText> texts;
  texts.reserve(names.size());
  for (const std::wstring& name : names) texts.push_back(TextOf(item, name));
  return texts;
}

std::vector<std::optional<std::wstring>> ParameterTexts(ProMdl model,
                                                        const std::vector<std::wstring>& names) {
  std::vector<std::optional<std::wstring>> texts;
  for (ParameterText& read : ReadParameterTexts(model, names)) {
    if (read.is_known) {
      texts.emplace_back(std::move(read.text).value_or(std::wstring()));
    } else {
      texts.emplace_back();
    }
  }
  return texts;
}

}  // namespace qm
