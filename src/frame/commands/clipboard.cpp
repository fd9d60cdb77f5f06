// The Windows clipboard.
#include "frame/commands/clipboard.h"

#include <windows.h>

#include <cstring>

namespace qm {
namespace {

// The text in global memory as the clipboard wants it; null when there is no memory.
HGLOBAL GlobalCopy(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, bytes);
  if (memory == nullptr) return nullptr;
  void* const target = ::GlobalLock(memory);
  if (target == nullptr) {
    ::GlobalFree(memory);
    return nullptr;
  }
  std::memcpy(target, text.c_str(), bytes);
  ::GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool CopyToClipboard(const std::wstring& text) {
  if (!::OpenClipboard(nullptr)) return false;
  // What cannot be emptied would keep other forms of what was there before.
  const HGLOBAL memory = ::EmptyClipboard() ? GlobalCopy(text) : nullptr;
  // The clipboard owns the memory once it has taken it.
  const bool copied = memory != nullptr && ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
  if (memory != nullptr && !copied) ::GlobalFree(memory);
  ::CloseClipboard();
  return copied;
}

}  // namespace qm
