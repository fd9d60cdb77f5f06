// Small text files among the settings.
#pragma once

#include <string>

namespace qm {

// UTF-8, or else the system's ANSI code page. Empty when the file is missing, cannot be read, or is
// larger than any that a user writes.
std::wstring ReadTextFile(const std::wstring& path);

}  // namespace qm
