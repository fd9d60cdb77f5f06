// Escapes text for HTML pages.
#include "workbench/base/html_text.h"

namespace wb {
namespace {

// Pages cannot hold control characters: of the symbols in a dimension's text, for example, nothing
// would be told apart. Unicode has a picture of each, 0x01 is U+2401.
bool IsControl(char c) {
  return c >= 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r';
}

std::string ControlPicture(char c) {
  return std::string("\xE2\x90") + static_cast<char>(0x80 + c);
}

}  // namespace

std::string EscapeHtml(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        if (IsControl(c)) {
          escaped += ControlPicture(c);
        } else {
          escaped += c;
        }
    }
  }
  return escaped;
}

}  // namespace wb
