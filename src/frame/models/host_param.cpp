// Conversion to the host's parameter records.
#include "frame/models/host_param.h"

#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

static_assert(kMaxParamNameLength == PRO_NAME_SIZE - 1);
static_assert(kMaxParamTextLength == PRO_LINE_SIZE - 1);

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
    CopyToHost(value, host.value.s_val);
  }
  void operator()(bool value) const {
    host.type = PRO_PARAM_BOOLEAN;
    host.value.l_val = value ? 1 : 0;
  }
};

}  // namespace

ProParamvalue HostValue(const ParamValue& value) {
  ProParamvalue host{};
  std::visit(HostValueFiller{host}, value);
  return host;
}

void WriteTextParameter(ProModelitem item, HostName& name, std::wstring_view text) {
  ProParamvalue value = HostValue(std::wstring(text));
  ProParameter parameter{};
  if (Ok(FindParameter(&item, name, &parameter))) {
    const ProError status = ProParameterValueSet(&parameter, &value);
    if (!Ok(status)) LogFailure(item.owner, "ProParameterValueSet", status);
    return;
  }
  const ProError status = ProParameterCreate(&item, name.name, &value, &parameter);
  if (!Ok(status)) LogFailure(item.owner, "ProParameterCreate", status);
}

}  // namespace qm
