// Message boxes of Windows with the plug-in's captions.
#include "frame/messages/message_box.h"

#include <windows.h>

#include "frame/messages/run_log.h"

namespace qm {

void ShowMessage(const wchar_t* text) noexcept {
  LogBox(text);
  ::MessageBoxW(nullptr, text, kCaption, MB_OK | MB_TOPMOST);
}

void ShowShortMessage(const wchar_t* text) noexcept {
  LogBox(text);
  ::MessageBoxW(::GetActiveWindow(), text, kApplicationTitle, MB_OK);
}

void ShowShortWarning(const wchar_t* text) noexcept {
  LogBox(text);
  ::MessageBoxW(::GetActiveWindow(), text, kApplicationTitle, MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace qm
