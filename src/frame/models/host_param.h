// Parameter values in the host's form, and the writing of string parameters.
#pragma once

#include <string_view>

#include "frame/models/parameter_lookup.h"
#include "frame/text/parameter_value.h"
#include "toolkit/model.h"
#include "toolkit/parameter.h"

namespace qm {

// The value in the host's form; texts longer than `kMaxParamTextLength` are cut.
ProParamvalue HostValue(const ParamValue& value);

// Creates the string parameter on `item`, or sets it when it is there. A failure is passed over and
// logged.
void WriteTextParameter(ProModelitem item, HostName& name, std::wstring_view text);

}  // namespace qm
