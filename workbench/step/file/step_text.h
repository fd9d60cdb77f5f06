// Texts of STEP files as readable UTF-8, so that a part called 螺栓 keeps its name.
#pragma once

#include <string>
#include <string_view>

namespace wb {

// Decodes what stands between the quotes of a STEP string: doubled quotes and backslashes and
// the directives \S\, \PA\..\PI\, \X\, \X2\..\X0\ and \X4\..\X0\. Line breaks inside a string
// only wrap it and vanish. Raw UTF-8 is kept; other raw bytes and impossible codes become U+FFFD.
std::string DecodeStepText(std::string_view raw);

}  // namespace wb
