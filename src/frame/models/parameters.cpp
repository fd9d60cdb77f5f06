// The host's parameter records and calls.
#include "frame/models/parameters.h"

#include <cstring>

#include "frame/messages/run_log.h"
#include "toolkit/status.h"

namespace qm {
namespace {

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
    FillFixedText(value, host.value.s_val);
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

ParameterResult FindParameter(ProModelitem owner, HostName& name, ProParameter* parameter) {
  *parameter = {};
  const ProError status = ProParameterInit(&owner, name.name, parameter);
  // By the whole record: the places of its members are not certain.
  static constexpr ProParameter kUntouched = {};
  const bool filled = std::memcmp(parameter, &kUntouched, sizeof(kUntouched)) != 0;
  return {"ProParameterInit", Ok(status) && !filled ? PRO_TK_GENERAL_ERROR : status};
}

ParameterResult CreateParameter(ProModelitem owner, HostName& name, ProParamvalue value) {
  ProParameter parameter{};
  return {"ProParameterCreate", ProParameterCreate(&owner, name.name, &value, &parameter)};
}

ParameterResult SetParameter(ProModelitem owner, HostName& name, ProParamvalue value) {
  ProParameter parameter{};
  const ParameterResult found = FindParameter(owner, name, &parameter);
  if (!Ok(found.status)) return found;
  return {"ProParameterValueSet", ProParameterValueSet(&parameter, &value)};
}

ParameterResult DeleteParameter(ProModelitem owner, HostName& name) {
  ProParameter parameter{};
  const ParameterResult found = FindParameter(owner, name, &parameter);
  if (!Ok(found.status)) return found;
  return {"ProParameterDelete", ProParameterDelete(&parameter)};
}

ParameterResult SetOrCreateParameter(ProModelitem owner, HostName& name, ProParamvalue value) {
  ProParameter parameter{};
  if (!Ok(FindParameter(owner, name, &parameter).status)) {
    return CreateParameter(owner, name, value);
  }
  return {"ProParameterValueSet", ProParameterValueSet(&parameter, &value)};
}

std::optional<ProParamvalue> ReadParameter(ProModelitem owner, HostName& name) {
  ProParameter parameter{};
  const ParameterResult found = FindParameter(owner, name, &parameter);
  if (!Ok(found.status)) {
    // Most models lack some of the parameters.
    if (found.status != PRO_TK_E_NOT_FOUND) LogFailure(owner.owner, found.function, found.status);
    return std::nullopt;
  }
  ProParamvalue value{};
  value.type = PRO_PARAM_VOID;
  const ProError status = ProParameterValueGet(&parameter, &value);
  if (Ok(status)) return value;
  LogFailure(owner.owner, "ProParameterValueGet", status);
  return std::nullopt;
}

}  // namespace qm
