// Draws workbooks.
#include "workbench/report/workbook_picture.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "workbench/base/html_text.h"
#include "workbench/report/report_text.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

constexpr int kMostRows = 12;
constexpr int kMostColumns = 16;

// The standard palette of workbooks, from its number 1.
// clang-format off
constexpr unsigned kPalette[] = {
    0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,
    0x800000, 0x008000, 0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080,
    0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF, 0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF,
    0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000, 0x008080, 0x0000FF,
    0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
    0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696,
    0x003366, 0x339966, 0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333,
};
// clang-format on

constexpr unsigned kUnknownColor = 0xFFFFFF;  // of a theme

unsigned ColorOf(const CellFill& fill) {
  if (!fill.from_palette) return fill.value == kThemeColor ? kUnknownColor : fill.value;
  const bool known = fill.value >= 1 && fill.value <= std::size(kPalette);
  return known ? kPalette[fill.value - 1] : kUnknownColor;
}

std::string CssOf(unsigned color) {
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", color & 0xFFFFFF);
  return text;
}

double Linear(unsigned level) {
  const double share = level / 255.0;
  return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

// Black on light cells, white on dark ones: at this luminance both can be read equally well.
const char* InkOn(unsigned color) {
  constexpr double kMiddle = 0.179;
  const double luminance = 0.2126 * Linear(color >> 16 & 0xFF) +
                           0.7152 * Linear(color >> 8 & 0xFF) + 0.0722 * Linear(color & 0xFF);
  return luminance > kMiddle ? "#000000" : "#ffffff";
}

std::string StyleOf(const CellFormat& format, const CellValue& value) {
  std::string style;
  if (format.fill) {
    const unsigned color = ColorOf(*format.fill);
    style += "background:" + CssOf(color) + ";color:" + InkOn(color) + ";";
  }
  if (format.bold) style += "font-weight:bold;";
  const bool is_number = std::holds_alternative<double>(value);
  if (format.alignment == CellAlignment::kCenter) style += "text-align:center;";
  if (format.alignment == CellAlignment::kRight ||
      (format.alignment == CellAlignment::kGeneral && is_number)) {
    style += "text-align:right;";
  }
  return style.empty() ? style : " style=\"" + style + "\"";
}

class SheetPainter {
 public:
  explicit SheetPainter(const Worksheet& sheet) : sheet_(sheet), used_(sheet.UsedArea()) {
    last_.row = std::min(used_.last.row, kMostRows);
    last_.column = std::min(used_.last.column, kMostColumns);
  }

  std::string Paint() const {
    std::string html = "<table class=\"book\"><tr><th></th>";
    for (int column = 1; column <= last_.column; ++column) {
      html += "<th>" + ColumnLetters(column) + "</th>";
    }
    html += "</tr>";
    for (int row = 1; row <= last_.row; ++row) html += RowOf(row);
    return html + "</table>" + MoreOf(used_.last.row, last_.row, "row") +
           MoreOf(used_.last.column, last_.column, "column");
  }

 private:
  static std::string MoreOf(int count, int drawn, const char* noun) {
    return MoreLine(static_cast<std::uint64_t>(count), static_cast<std::size_t>(drawn), noun);
  }

  std::string RowOf(int row) const {
    std::string html = "<tr><th>" + std::to_string(row) + "</th>";
    for (int column = 1; column <= last_.column; ++column) html += CellOf({row, column});
    return html + "</tr>";
  }

  std::string CellOf(CellPosition cell) const {
    const auto merged = std::ranges::find_if(
        sheet_.merges(), [&](const CellArea& area) { return area.Contains(cell); });
    std::string span;
    if (merged != sheet_.merges().end()) {
      if (cell != merged->first) return {};
      span = SpanOf("colspan", merged->last.column, last_.column, cell.column) +
             SpanOf("rowspan", merged->last.row, last_.row, cell.row);
    }
    const CellValue value = sheet_.ValueAt(cell);
    return "<td" + span + StyleOf(sheet_.FormatAt(cell), value) + ">" +
           EscapeHtml(CellText(value)) + "</td>";
  }

  static std::string SpanOf(const char* attribute, int last, int last_drawn, int first) {
    const int count = std::min(last, last_drawn) - first + 1;
    return count == 1 ? "" : std::string(" ") + attribute + "=\"" + std::to_string(count) + "\"";
  }

  const Worksheet& sheet_;
  const CellArea used_;
  CellPosition last_;
};

}  // namespace

std::string DrawWorkbook(const Workbook& book) {
  if (book.active_sheet >= book.sheets.size()) return "<p class=\"more\">no sheets</p>";
  return SheetPainter(book.sheets[book.active_sheet]).Paint();
}

std::string DrawWorkbookFile(const std::filesystem::path& file) {
  try {
    return DrawWorkbook(ReadXlsx(file));
  } catch (const std::exception& error) {
    return "<p class=\"bad\">cannot be drawn: " + EscapeHtml(error.what()) + "</p>";
  }
}

}  // namespace wb
