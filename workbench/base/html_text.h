// Text on its way into an HTML page or an XML part of a workbook.
#pragma once

#include <string>
#include <string_view>

namespace wb {

// `text` with the characters replaced that mean something in HTML content and quoted attributes,
// and control characters by their pictures.
std::string EscapeHtml(std::string_view text);

}  // namespace wb
