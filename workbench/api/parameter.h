// Values and records of parameters, for the other families that take them.
#pragma once

#include <string>

#include "workbench/host/call.h"

namespace wb {

ParameterValue ParameterValueAt(const Call& call, const ProParamvalue& value);
void FillParameterValue(const Call& call, const ParameterValue& held, ProParamvalue& value);
// The name in a record, and the model that has, or had, the parameter.
std::string ParameterNameAt(const Call& call, const ProParameter& record, Model** model);

}  // namespace wb
