// The Windows clipboard.
#pragma once

#include <string>

namespace qm {

// Puts `text` on the clipboard as Unicode text. False, without a message, when that fails.
bool CopyToClipboard(const std::wstring& text);

}  // namespace qm
