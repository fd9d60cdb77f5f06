// Conversion to the host's parameter records.
#include "params/host_param.h"

#include <algorithm>
#include <iterator>

#include "frame/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

static_assert(kMaxParamNameLength == PRO_NAME_SIZE - 1);
static_assert(kMaxParamTextLength == PRO_LINE_SIZE - 1);

// Fills a fixed text of the host and closes it.
template <size_t Size>
void CopyText(std::wstring_view text, wchar_t (&buffer)[Size]) {
  const size_t length = std::min(text.size(), Size - 1);
  std::copy_n(text.begin(), length, buffer);
  std::fill(buffer + length, std::end(buffer), L'\0');
}

struct HostValueFiller {
  ProParamvalue& host;
  void operator()(int value) const {
    host.type = PRO_PARAM_INTEGER;
    host.value.i_val = value;
  }
  void operator()(double value) const {
    host.type = PRO_PARAM_DOUBLE;
    host.value.d_val = value;
  }
  void operator()(const std::wstring& value) const {
    host.type = PRO_PARAM_STRING;
    CopyText(value, host.value.s_val);
  }
  void operator()(bool value) const {
    host.type = PRO_PARAM_BOOLEAN;
    host.value.l_val = value ? 1 : 0;
  }
};

}  // namespace

HostName::HostName(std::wstring_view text) {
  CopyText(text, name);
}

ProParamvalue HostValue(const ParamValue& value) {
  ProParamvalue host{};
  std::visit(HostValueFiller{host}, value);
  return host;
}

ProError FindParameter(ProModelitem* item, HostName& name, ProParameter* parameter) {
  const ProError status = ProParameterInit(item, name.name, parameter);
  const bool filled = parameter->owner.who.item.owner != nullptr;
  return Ok(status) && !filled ? PRO_TK_GENERAL_ERROR : status;
}

void WriteTextParameter(ProModelitem item, std::wstring_view name, std::wstring_view text) {
  HostName host_name(name);
  ProParamvalue value = HostValue(std::wstring(text));
  ProParameter parameter{};
  if (Ok(FindParameter(&item, host_name, &parameter))) {
    const ProError status = ProParameterValueSet(&parameter, &value);
    if (!Ok(status)) LogFailure(item.owner, "ProParameterValueSet", status);
    return;
  }
  const ProError status = ProParameterCreate(&item, host_name.name, &value, &parameter);
  if (!Ok(status)) LogFailure(item.owner, "ProParameterCreate", status);
}

}  // namespace qm
