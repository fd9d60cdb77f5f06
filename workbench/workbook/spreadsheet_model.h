// Workbooks of the spreadsheet stand-in: sheets with their cells, formats, merges and column
// widths, and what the program makes of a text that is put into a cell.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace wb {

inline constexpr int kSheetRows = 1048576;
inline constexpr int kSheetColumns = 16384;
inline constexpr size_t kLongestCellText = 32767;  // in 16-bit characters

struct CellPosition {
  int row = 1;  // from 1
  int column = 1;
  auto operator<=>(const CellPosition&) const = default;
};
// "B12", dollar signs allowed; none when it is no cell of a sheet.
std::optional<CellPosition> ParseCellAddress(std::string_view text);
std::string ColumnLetters(int column);
std::string CellAddress(CellPosition cell);

// A block of cells, both corners included.
struct CellArea {
  CellPosition first;
  CellPosition last;
  bool operator==(const CellArea&) const = default;

  int Rows() const { return last.row - first.row + 1; }
  int Columns() const { return last.column - first.column + 1; }
  bool Contains(CellPosition cell) const;
  bool Overlaps(const CellArea& other) const;
  bool IsWholeColumns() const { return Rows() == kSheetRows; }
};
std::string AreaAddress(const CellArea& area);
// "A1:C1", or one cell.
std::optional<CellArea> ParseAreaAddress(std::string_view text);

// What stands for a colour of a workbook's theme: there is one, but which is not modelled.
inline constexpr unsigned kThemeColor = 0x1000000;

// A colour, or one of the 56 of the workbook's palette.
struct CellFill {
  bool from_palette = false;
  unsigned value = 0;  // 0xRRGGBB, or the palette's index from 1
  auto operator<=>(const CellFill&) const = default;
};

enum class CellAlignment { kGeneral, kLeft, kCenter, kRight };

inline constexpr double kStandardFontSize = 11;

struct CellFormat {
  std::string number_format = "General";
  bool bold = false;
  double size = kStandardFontSize;  // of the font, in points
  std::optional<CellFill> fill;
  CellAlignment alignment = CellAlignment::kGeneral;
  bool wrap = false;  // set by the program itself for texts of several lines
  auto operator<=>(const CellFormat&) const = default;
};
inline constexpr const char* kTextFormat = "@";

using CellValue = std::variant<std::monostate, std::string, double, bool>;
// The value as it would be shown; "" for an empty cell.
std::string CellText(const CellValue& value);

// How the program reads a text that is put into a cell without text format.
enum class TextReading {
  kText,
  kNumber,
  kBoolean,
  kFormula,
  kOther,  // a date, a time, a percentage, an amount: what exactly depends on the user's country
};
TextReading ReadingOf(std::string_view text);

enum class Entered {
  kDone,
  kFormula,  // begins like a formula but is none
  kTooLong,
  kOther,  // see TextReading
};

class Worksheet {
 public:
  struct Cell {
    CellValue value;
    CellFormat format;
  };
  struct Column {
    std::optional<double> width;  // in characters
    CellFormat format;
  };

  std::string name;

  // The cell, or null when nothing was ever put into it.
  const Cell* Find(CellPosition cell) const;
  CellValue ValueAt(CellPosition cell) const;
  // The cell's own format, else its column's.
  CellFormat FormatAt(CellPosition cell) const;
  std::optional<double> WidthOf(int column) const;
  bool IsMerged(const CellArea& area) const;

  void SetValue(CellPosition cell, CellValue value) { At(cell).value = std::move(value); }
  // Puts a text into every cell as the program itself would: in a cell with text format it stays
  // text, elsewhere it may become a number; a leading apostrophe makes it text and is hidden.
  Entered EnterText(const CellArea& area, const std::string& text);
  // Changes cells, or whole columns with the cells in them.
  void ChangeFormat(const CellArea& area, const std::function<void(CellFormat&)>& change);
  void SetFormat(CellPosition cell, const CellFormat& format) { At(cell).format = format; }
  Column& ColumnAt(int column) { return columns_[column]; }
  // Only the upper left cell keeps its value. False when another merged area is in the way.
  bool Merge(const CellArea& area);
  // Makes the columns of the area as wide as their longest text; merged cells do not count.
  void FitColumns(const CellArea& area);
  // Makes the rows of the area as high as the lines in them.
  void FitRows(const CellArea& area);

  // All that holds a value or a format; A1 when nothing does.
  CellArea UsedArea() const;
  const std::map<CellPosition, Cell>& cells() const { return cells_; }
  const std::map<int, Column>& columns() const { return columns_; }
  const std::map<int, double>& row_heights() const { return row_heights_; }  // in points
  const std::vector<CellArea>& merges() const { return merges_; }

 private:
  Cell& At(CellPosition cell);
  bool InMergedArea(CellPosition cell) const;

  std::map<CellPosition, Cell> cells_;  // row by row
  std::map<int, Column> columns_;
  std::map<int, double> row_heights_;
  std::vector<CellArea> merges_;
};

struct Workbook {
  std::vector<Worksheet> sheets;
  size_t active_sheet = 0;
};
// With one empty sheet, as the program makes it.
Workbook NewWorkbook();

}  // namespace wb
