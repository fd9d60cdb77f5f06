// Small pieces of text that the parts of a report share.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wb {

// Look of the report page and, as SVG symbols "#i-part" and so on, the icons of model trees.
extern const char* const kReportCss;
extern const char* const kReportIcons;

// Escaped, with tabs as visible gaps an en wide; to stand where white space is kept (class "t").
std::string ShownText(std::string_view text);

// "1 row", "1,234 rows".
std::string Counted(std::uint64_t count, const std::string& noun);

// A line that says how many more there are than were drawn; empty when none was left out.
std::string MoreLine(std::size_t count, std::size_t drawn, const std::string& noun);

}  // namespace wb
