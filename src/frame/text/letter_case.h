// Lower-casing of names, the same on every machine: the C library's own depends on the locale that
// the host happens to have set.
#pragma once

#include <string>
#include <string_view>

namespace qm {

// Each letter with a simple one-to-one lower-case form replaced by it: Latin, Greek, Cyrillic,
// Armenian and full-width letters. Everything else is kept, so the length never changes.
std::wstring LowerCased(std::wstring_view text);

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b);

}  // namespace qm
