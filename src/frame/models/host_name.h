// A name as the host takes it: in a fixed buffer that its calls may change.
#pragma once

#include <string_view>

#include "frame/text/fixed_text.h"
#include "toolkit/types.h"

namespace qm {

struct HostName {
  explicit HostName(std::wstring_view text) { FillFixedText(text, name); }
  ProName name{};
};

}  // namespace qm
