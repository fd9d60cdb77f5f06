// Text conversions through the system's code pages.
#include "frame/text/text.h"

#include <windows.h>

namespace qm {
namespace {

// `lossy` receives whether the code page lacked a character; null where it must not be asked.
std::string ToCodePage(UINT code_page, std::wstring_view text, BOOL* lossy) {
  const int length = static_cast<int>(text.size());
  if (length == 0) return {};
  const int size =
      ::WideCharToMultiByte(code_page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  ::WideCharToMultiByte(code_page, 0, text.data(), length, result.data(), size, nullptr, lossy);
  return result;
}

}  // namespace

std::string ToAnsi(std::wstring_view text) {
  return ToCodePage(CP_ACP, text, nullptr);
}

std::optional<std::string> ToAnsiExactly(std::wstring_view text) {
  // With UTF-8 as the ANSI code page nothing is lost, and Windows refuses the question.
  BOOL lossy = FALSE;
  std::string result = ToCodePage(CP_ACP, text, ::GetACP() == CP_UTF8 ? nullptr : &lossy);
  if (lossy != FALSE || FromAnsi(result) != text) return std::nullopt;
  return result;
}

std::wstring FromAnsi(std::string_view text) {
  const int length = static_cast<int>(text.size());
  if (length == 0) return {};
  const int size = ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(size), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, text.data(), length, result.data(), size);
  return result;
}

std::string ToUtf8(std::wstring_view text) {
  return ToCodePage(CP_UTF8, text, nullptr);
}

}  // namespace qm
