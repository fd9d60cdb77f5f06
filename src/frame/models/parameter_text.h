// Values of a model's parameters as texts.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/model.h"

namespace qm {

// For each name the text of the model's parameter: a string as it stands, a whole number, a real
// number with three decimals, 是 or 否. Empty when there is no such parameter or it is of another
// type; nothing, after a line in the log, when it cannot be read.
std::vector<std::optional<std::wstring>> ParameterTexts(ProMdl model,
                                                        const std::vector<std::wstring>& names);

}  // namespace qm
