// Cells, formats and merges of the spreadsheet stand-in.
#include "workbench/workbook/spreadsheet_model.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

constexpr double kWidestColumn = 255;
constexpr double kColumnPadding = 2;
constexpr double kLineHeight = 1.3;  // of the font's size

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// "-12.5e3" with blanks around it.
std::optional<double> PlainNumber(std::string_view text) {
  const std::string number = Trimmed(text);
  const bool plain = number.find_first_not_of("0123456789+-.eE") == std::string::npos &&
                     std::any_of(number.begin(), number.end(), IsDigit);
  char* end = nullptr;
  const double value = plain ? std::strtod(number.c_str(), &end) : 0;
  if (!plain || *end != '\0' || !std::isfinite(value)) return std::nullopt;
  return value;
}

bool OnlyOf(std::string_view text, const std::u16string& characters) {
  const std::u16string wide = ToUtf16(text);
  return wide.find_first_not_of(characters) == std::u16string::npos;
}

// Width in columns of a typewriter: East Asian characters take two.
double ShownWidth(const std::string& text) {
  double widest = 0;
  double width = 0;
  for (const char16_t c : ToUtf16(text)) {
    width = c == u'\n' ? 0 : width + (c >= 0x2e80 ? 2 : 1);
    widest = std::max(widest, width);
  }
  return widest;
}

CellValue ValueOf(TextReading reading, const std::string& text) {
  switch (reading) {
    case TextReading::kNumber:
      return *PlainNumber(text);
    case TextReading::kBoolean:
      return EqualFolded(Trimmed(text), "true");
    default:
      return text.empty() ? CellValue() : CellValue(text);
  }
}

}  // namespace

std::optional<CellPosition> ParseCellAddress(std::string_view text) {
  std::string plain(text);
  std::erase(plain, '$');
  long column = 0;
  size_t at = 0;
  for (; at < plain.size() && at < 4 && std::isalpha(static_cast<unsigned char>(plain[at])); ++at) {
    column = column * 26 + (std::toupper(static_cast<unsigned char>(plain[at])) - 'A' + 1);
  }
  const std::string digits = plain.substr(at);
  const bool whole = at > 0 && !digits.empty() && digits.size() <= 7 &&
                     std::all_of(digits.begin(), digits.end(), IsDigit);
  const int row = whole ? std::atoi(digits.c_str()) : 0;
  if (row < 1 || row > kSheetRows || column > kSheetColumns) return std::nullopt;
  return CellPosition{row, static_cast<int>(column)};
}

std::string ColumnLetters(int column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

std::string CellAddress(CellPosition cell) {
  return ColumnLetters(cell.column) + std::to_string(cell.row);
}

std::string AreaAddress(const CellArea& area) {
  const std::string first = CellAddress(area.first);
  return area.first == area.last ? first : first + ":" + CellAddress(area.last);
}

std::optional<CellArea> ParseAreaAddress(std::string_view text) {
  const size_t colon = std::min(text.find(':'), text.size());
  const auto first = ParseCellAddress(text.substr(0, colon));
  const auto last = colon == text.size() ? first : ParseCellAddress(text.substr(colon + 1));
  if (!first || !last || first->row > last->row || first->column > last->column) {
    return std::nullopt;
  }
  return CellArea{*first, *last};
}

bool CellArea::Contains(CellPosition cell) const {
  return cell.row >= first.row && cell.row <= last.row && cell.column >= first.column &&
         cell.column <= last.column;
}

bool CellArea::Overlaps(const CellArea& other) const {
  return first.row <= other.last.row && other.first.row <= last.row &&
         first.column <= other.last.column && other.first.column <= last.column;
}

std::string CellText(const CellValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* number = std::get_if<double>(&value)) return NumberText(*number);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "TRUE" : "FALSE";
  return {};
}

TextReading ReadingOf(std::string_view text) {
  const std::string trimmed = Trimmed(text);
  if (PlainNumber(trimmed)) return TextReading::kNumber;
  if (trimmed.size() > 1 && std::string_view("=+-@").find(text.front()) != text.npos) {
    return TextReading::kFormula;
  }
  if (EqualFolded(trimmed, "true") || EqualFolded(trimmed, "false")) return TextReading::kBoolean;
  const bool digits = std::any_of(trimmed.begin(), trimmed.end(), IsDigit);
  return digits && OnlyOf(trimmed, u"0123456789 -/:.,%¥￥$()年月日时分秒") ? TextReading::kOther
                                                                           : TextReading::kText;
}

const Worksheet::Cell* Worksheet::Find(CellPosition cell) const {
  const auto found = cells_.find(cell);
  return found == cells_.end() ? nullptr : &found->second;
}

CellValue Worksheet::ValueAt(CellPosition cell) const {
  const Cell* const found = Find(cell);
  return found == nullptr ? CellValue() : found->value;
}

CellFormat Worksheet::FormatAt(CellPosition cell) const {
  if (const Cell* const found = Find(cell)) return found->format;
  const auto column = columns_.find(cell.column);
  return column == columns_.end() ? CellFormat() : column->second.format;
}

std::optional<double> Worksheet::WidthOf(int column) const {
  const auto found = columns_.find(column);
  return found == columns_.end() ? std::nullopt : found->second.width;
}

bool Worksheet::IsMerged(const CellArea& area) const {
  return std::find(merges_.begin(), merges_.end(), area) != merges_.end();
}

Worksheet::Cell& Worksheet::At(CellPosition cell) {
  const auto found = cells_.find(cell);
  if (found != cells_.end()) return found->second;
  return cells_.emplace(cell, Cell{{}, FormatAt(cell)}).first->second;
}

Entered Worksheet::EnterText(const CellArea& area, const std::string& text) {
  if (WideLength(text) > kLongestCellText) return Entered::kTooLong;
  const bool marked = text.starts_with('\'');
  const std::string shown = marked ? text.substr(1) : text;
  const auto reading_in = [&](CellPosition cell) {
    if (marked || FormatAt(cell).number_format == kTextFormat) return TextReading::kText;
    return ReadingOf(shown);
  };
  std::vector<std::pair<CellPosition, TextReading>> targets;
  for (int row = area.first.row; row <= area.last.row; ++row) {
    for (int column = area.first.column; column <= area.last.column; ++column) {
      const TextReading reading = reading_in({row, column});
      if (reading == TextReading::kFormula) return Entered::kFormula;
      if (reading == TextReading::kOther) return Entered::kOther;
      targets.push_back({{row, column}, reading});
    }
  }
  for (const auto& [position, reading] : targets) {
    Cell& cell = At(position);
    cell.value = ValueOf(reading, shown);
    if (shown.find('\n') != std::string::npos) cell.format.wrap = true;
  }
  return Entered::kDone;
}

void Worksheet::ChangeFormat(const CellArea& area, const std::function<void(CellFormat&)>& change) {
  if (!area.IsWholeColumns()) {
    for (int row = area.first.row; row <= area.last.row; ++row) {
      for (int column = area.first.column; column <= area.last.column; ++column) {
        change(At({row, column}).format);
      }
    }
    return;
  }
  for (auto& [position, cell] : cells_) {
    if (area.Contains(position)) change(cell.format);
  }
  for (int column = area.first.column; column <= area.last.column; ++column) {
    change(columns_[column].format);
  }
}

bool Worksheet::Merge(const CellArea& area) {
  const bool blocked = std::any_of(merges_.begin(), merges_.end(),
                                   [&](const CellArea& other) { return area.Overlaps(other); });
  if (blocked) return false;
  for (auto at = cells_.lower_bound(area.first); at != cells_.end() && !(area.last < at->first);
       ++at) {
    if (area.Contains(at->first) && at->first != area.first) at->second.value = CellValue();
  }
  if (area.first != area.last) merges_.push_back(area);
  return true;
}

bool Worksheet::InMergedArea(CellPosition cell) const {
  return std::any_of(merges_.begin(), merges_.end(),
                     [&](const CellArea& area) { return area.Contains(cell); });
}

void Worksheet::FitColumns(const CellArea& area) {
  std::map<int, double> widths;
  for (const auto& [position, cell] : cells_) {
    const bool inside = position.column >= area.first.column && position.column <= area.last.column;
    const std::string text = CellText(cell.value);
    if (!inside || text.empty() || InMergedArea(position)) continue;
    double& width = widths[position.column];
    width = std::max(width, ShownWidth(text) * cell.format.size / kStandardFontSize);
  }
  for (const auto& [column, width] : widths) {
    columns_[column].width = std::min(width + kColumnPadding, kWidestColumn);
  }
}

void Worksheet::FitRows(const CellArea& area) {
  for (const auto& [position, cell] : cells_) {
    if (position.row < area.first.row || position.row > area.last.row) continue;
    const std::string text = CellText(cell.value);
    const auto lines = cell.format.wrap ? 1 + std::count(text.begin(), text.end(), '\n') : 1;
    double& height = row_heights_[position.row];
    height =
        std::max(height, std::ceil(static_cast<double>(lines) * cell.format.size * kLineHeight));
  }
}

CellArea Worksheet::UsedArea() const {
  if (cells_.empty()) return {};
  CellArea used = {cells_.begin()->first, cells_.begin()->first};
  for (const auto& [position, cell] : cells_) {
    used.last.row = std::max(used.last.row, position.row);
    used.first.column = std::min(used.first.column, position.column);
    used.last.column = std::max(used.last.column, position.column);
  }
  return used;
}

Workbook NewWorkbook() {
  Workbook book;
  book.sheets.emplace_back().name = "Sheet1";
  return book;
}

}  // namespace wb
