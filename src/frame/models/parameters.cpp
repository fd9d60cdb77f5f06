// The host's parameter records and calls.
#include "frame/models/parameters.h"

#include "frame/guard/filled.h"
#include "frame/messages/run_log.h"
#include "frame/text/letter_case.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// False when the value does not fit.
struct HostValueFiller {
  ProParamvalue& host;
  bool operator()(int value) const {
    host.type = PRO_PARAM_INTEGER;
    host.value.i_val = value;
    return true;
  }
  bool operator()(double value) const {
    host.type = PRO_PARAM_DOUBLE;
    host.value.d_val = value;
    return true;
  }
  bool operator()(const std::wstring& value) const {
    host.type = PRO_PARAM_STRING;
    return FillFixedText(value, host.value.s_val);
  }
  bool operator()(bool value) const {
    host.type = PRO_PARAM_BOOLEAN;
    host.value.l_val = value ? 1 : 0;
    return true;
  }
};

constexpr ParameterResult kUnknownRecord = {
    "ProParameterInit, whose record is in an order that is not known,", PRO_TK_INVALID_ITEM};

// Whether a filled record is that of the asked name. If not, its members stand elsewhere than we
// think, and what is done by it might be done to another parameter.
bool IsNamed(const ProParameter& parameter, const HostName& name) {
  return EqualIgnoringCase(FixedText(parameter.id), FixedText(name.name));
}

// For those who change the parameter.
ParameterResult FindToChange(const ProModelitem& owner, HostName& name, ProParameter* parameter) {
  const ParameterResult found = FindParameter(owner, name, parameter);
  return !Ok(found.status) || IsNamed(*parameter, name) ? found : kUnknownRecord;
}

}  // namespace

std::optional<ProParamvalue> HostValue(const ParamValue& value) {
  ProParamvalue host{};
  if (!std::visit(HostValueFiller{host}, value)) return std::nullopt;
  return host;
}

ParameterResult FindParameter(ProModelitem owner, HostName& name, ProParameter* parameter) {
  *parameter = {};
  const ProError status = ProParameterInit(&owner, name.name, parameter);
  return {"ProParameterInit", FilledStatus(status, *parameter)};
}

ParameterResult CreateParameter(ProModelitem owner, HostName& name, ProParamvalue value) {
  ProParameter parameter{};
  return {"ProParameterCreate", ProParameterCreate(&owner, name.name, &value, &parameter)};
}

ParameterResult SetParameter(ProModelitem owner, HostName& name, ProParamvalue value) {
  ProParameter parameter{};
  const ParameterResult found = FindToChange(owner, name, &parameter);
  if (!Ok(found.status)) return found;
  return {"ProParameterValueSet", ProParameterValueSet(&parameter, &value)};
}

ParameterResult DeleteParameter(ProModelitem owner, HostName& name) {
  ProParameter parameter{};
  const ParameterResult found = FindToChange(owner, name, &parameter);
  if (!Ok(found.status)) return found;
  return {"ProParameterDelete", ProParameterDelete(&parameter)};
}

ParameterResult SetOrCreateParameter(ProModelitem owner, HostName& name, ProParamvalue value) {
  ProParameter parameter{};
  if (!Ok(FindParameter(owner, name, &parameter).status)) {
    return CreateParameter(owner, name, value);
  }
  if (!IsNamed(parameter, name)) return kUnknownRecord;
  return {"ProParameterValueSet", ProParameterValueSet(&parameter, &value)};
}

ReadValue ReadParameter(ProModelitem owner, HostName& name) {
  ProParameter parameter{};
  const ParameterResult found = FindParameter(owner, name, &parameter);
  // Most models lack some of the parameters.
  if (found.status == PRO_TK_E_NOT_FOUND) return {};
  if (!Ok(found.status)) {
    LogFailure(owner.owner, found.function, found.status);
    return {std::nullopt, false};
  }
  ProParamvalue value{};
  const ProError status = ProParameterValueGet(&parameter, &value);
  // No value is of type 0.
  if (Ok(status) && static_cast<int>(value.type) != 0) return {value};
  LogFailure(owner.owner, "ProParameterValueGet", status);
  return {std::nullopt, false};
}

}  // namespace qm
