// Text pieces of a report page.
#include "workbench/report/report_text.h"

#include "workbench/base/html_text.h"

namespace wb {

std::string ShownText(std::string_view text) {
  const std::string escaped = EscapeHtml(text);
  std::string shown;
  shown.reserve(escaped.size());
  for (const char c : escaped) {
    if (c == '\t') {
      // The tab stays inside, so that copying from the page gives the text as it was.
      shown += "<span class=\"tab\" title=\"tab\">\t</span>";
    } else {
      shown += c;
    }
  }
  return shown;
}

std::string Counted(std::uint64_t count, const std::string& noun) {
  std::string digits = std::to_string(count);
  for (std::size_t at = digits.size(); at > 3; at -= 3) digits.insert(at - 3, ",");
  return digits + " " + noun + (count == 1 ? "" : "s");
}

std::string MoreLine(std::size_t count, std::size_t drawn, const std::string& noun) {
  if (count <= drawn) return {};
  return "<p class=\"more\">… " + Counted(count - drawn, "more " + noun) + "</p>";
}

}  // namespace wb
