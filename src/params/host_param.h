// Parameter values and names in the host's form, and the writing of string parameters.
#pragma once

#include <string_view>

#include "params/param_value_rules.h"
#include "toolkit/model.h"
#include "toolkit/parameter.h"

namespace qm {

// A name in the host's fixed buffer; what does not fit is cut.
struct HostName {
  explicit HostName(std::wstring_view text);
  ProName name{};
};

// The value in the host's form; texts longer than `kMaxParamTextLength` are cut.
ProParamvalue HostValue(const ParamValue& value);

// Finds a parameter of `item`. A success that fills nothing in counts as a failure.
ProError FindParameter(ProModelitem* item, HostName& name, ProParameter* parameter);

// Creates the string parameter on `item`, or sets it when it is there. A failure is passed over and
// logged.
void WriteTextParameter(ProModelitem item, std::wstring_view name, std::wstring_view text);

}  // namespace qm
