// The macro of the single dimension, from the text of its file.
#pragma once

#include <string>
#include <string_view>

namespace qm {

// The lines without those that begin with "#", joined without breaks.
std::wstring MacroOf(std::wstring_view file_text);

}  // namespace qm
