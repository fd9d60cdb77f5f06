// Values of a model's parameters as texts.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/model.h"

namespace qm {

// For each name the text of the model's parameter: a string as it stands, a whole number, a real
// number with three decimals, 是 or 否.
struct ParameterText {
  std::optional<std::wstring> text;  // nothing: no such parameter, one of another type, or unknown
  bool is_known = true;              // false: it cannot be read, which is logged
};
std::vector<ParameterText> ReadParameterTexts(ProMdl model, const std::vector<std::wstring>& names);

// The same for tables: empty where there is no text, nothing where it cannot be read.
std::vector<std::optional<std::wstring>> ParameterTexts(ProMdl model,
                                                        const std::vector<std::wstring>& names);

}  // namespace qm
