// The two kinds of message box.
#pragma once

#include <string>

namespace qm {

// Caption of the results and refusals that commands show.
inline constexpr wchar_t kCaption[] = L"羽石工具箱";
// Title of the plain box.
inline constexpr wchar_t kApplicationTitle[] = L"Quillmax";

// Topmost box with the caption, no owner and an OK button, for results and refusals inside a
// command. Texts usually open and close with a tab, which is part of them.
void ShowMessage(const wchar_t* text) noexcept;
inline void ShowMessage(const std::wstring& text) {
  ShowMessage(text.c_str());
}

// Plain application box with an OK button, for dialog errors and for refusals when there is nothing
// to work on.
void ShowShortMessage(const wchar_t* text) noexcept;
inline void ShowShortMessage(const std::wstring& text) {
  ShowShortMessage(text.c_str());
}

// The plain box with an exclamation mark, for another program that cannot be used.
void ShowShortWarning(const wchar_t* text) noexcept;

}  // namespace qm
