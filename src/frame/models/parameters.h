// The parameters of a model: found, read, created, set and deleted by name.
#pragma once

#include <optional>

#include "frame/models/host_name.h"
#include "frame/models/parameter_value.h"
#include "toolkit/model.h"
#include "toolkit/parameter.h"

namespace qm {

// The value in the host's form; nothing for a text longer than `kMaxParamTextLength`.
std::optional<ProParamvalue> HostValue(const ParamValue& value);

// How an operation ended: the host's function that decided it, and its status. Logging a failure is
// the caller's, who may know the model's name.
struct ParameterResult {
  const char* function;
  ProError status;
};
inline constexpr ParameterResult kTextTooLong = {"parameter value", PRO_TK_LINE_TOO_LONG};

// A success that fills nothing in counts as a failure.
ParameterResult FindParameter(ProModelitem owner, HostName& name, ProParameter* parameter);
// Those that change a parameter also fail when the host's record does not bear the asked name,
// without case.
ParameterResult CreateParameter(ProModelitem owner, HostName& name, ProParamvalue value);
// Fails where there is no such parameter.
ParameterResult SetParameter(ProModelitem owner, HostName& name, ProParamvalue value);
ParameterResult DeleteParameter(ProModelitem owner, HostName& name);
ParameterResult SetOrCreateParameter(ProModelitem owner, HostName& name, ProParamvalue value);

struct ReadValue {
  std::optional<ProParamvalue> value;  // nothing: there is no such parameter
  bool is_known = true;                // false: it cannot be read, which is logged
};
ReadValue ReadParameter(ProModelitem owner, HostName& name);

}  // namespace qm
