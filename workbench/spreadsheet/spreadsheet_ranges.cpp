// Worksheets, their ranges, and the fill and font of ranges.
#include <algorithm>
#include <climits>

#include "workbench/host/call.h"
#include "workbench/spreadsheet/spreadsheet_members.h"

namespace wb {
namespace {

constexpr CellArea kWholeSheet = {{1, 1}, {kSheetRows, kSheetColumns}};
// More cells than this are never written one value at a time.
constexpr long long kMostCells = 1000000;
constexpr int kLargestColor = 0xFFFFFF;
constexpr int kPaletteSize = 56;
constexpr int kNoColorIndex = -4142;
constexpr double kLargestFont = 409;

struct AlignmentNumber {
  int number;
  CellAlignment alignment;
};
constexpr AlignmentNumber kAlignments[] = {{1, CellAlignment::kGeneral},
                                           {-4131, CellAlignment::kLeft},
                                           {-4108, CellAlignment::kCenter},
                                           {-4152, CellAlignment::kRight}};

ObjectPlace PlaceOf(const Invocation& invocation, const CellArea& area,
                    RangeSpan span = RangeSpan::kCells) {
  ObjectPlace place = invocation.Place();
  place.area = area;
  place.span = span;
  return place;
}

void CheckSize(const CellArea& area) {
  if (area.IsWholeColumns()) return;
  if (static_cast<long long>(area.Rows()) * area.Columns() > kMostCells) {
    throw NotModelled{"a change of " + AreaAddress(area)};
  }
}

void ChangeFormat(const Invocation& invocation, const std::function<void(CellFormat&)>& change) {
  CheckSize(invocation.Place().area);
  invocation.ChangedSheet().ChangeFormat(invocation.Place().area, change);
}

CellPosition CellArgument(const Invocation& invocation, size_t index) {
  const std::string address = invocation.Text(index);
  const auto cell = ParseCellAddress(address);
  if (!cell) throw WrongCall{DISP_E_BADINDEX, "\"" + address + "\" is no cell"};
  return *cell;
}

void GiveRange(const Invocation& invocation) {
  const CellPosition a = CellArgument(invocation, 0);
  const CellPosition b = CellArgument(invocation, 1);
  const CellArea area = {{std::min(a.row, b.row), std::min(a.column, b.column)},
                         {std::max(a.row, b.row), std::max(a.column, b.column)}};
  invocation.Give(ObjectKind::kRange, PlaceOf(invocation, area));
}

template <RangeSpan Span>
void GiveAll(const Invocation& invocation) {
  invocation.Give(ObjectKind::kRange, PlaceOf(invocation, kWholeSheet, Span));
}

template <RangeSpan Span>
void GivePart(const Invocation& invocation) {
  invocation.Give(ObjectKind::kRange, PlaceOf(invocation, invocation.Place().area, Span));
}

void GiveUsedRange(const Invocation& invocation) {
  invocation.Give(ObjectKind::kRange, PlaceOf(invocation, invocation.Sheet().UsedArea()));
}

void GiveEntireColumn(const Invocation& invocation) {
  CellArea area = invocation.Place().area;
  area.first.row = 1;
  area.last.row = kSheetRows;
  invocation.Give(ObjectKind::kRange, PlaceOf(invocation, area, RangeSpan::kColumns));
}

// Counted from the range's first cell, which may be left behind.
void GiveItem(const Invocation& invocation) {
  const CellPosition first = invocation.Place().area.first;
  const CellPosition cell = {first.row + invocation.Number(0) - 1,
                             first.column + invocation.Number(1) - 1};
  if (!kWholeSheet.Contains(cell)) throw ProgramError{"there is no such cell"};
  invocation.Give(ObjectKind::kRange, PlaceOf(invocation, {cell, cell}));
}

void GiveCount(const Invocation& invocation) {
  const ObjectPlace& place = invocation.Place();
  const long long cells = static_cast<long long>(place.area.Rows()) * place.area.Columns();
  const long long count = place.span == RangeSpan::kRows      ? place.area.Rows()
                          : place.span == RangeSpan::kColumns ? place.area.Columns()
                                                              : cells;
  if (count > INT_MAX) throw ProgramError{"overflow"};
  invocation.Give(static_cast<int>(count));
}

void GetValue(const Invocation& invocation) {
  const CellArea& area = invocation.Place().area;
  if (area.first != area.last) throw NotModelled{"the values of " + AreaAddress(area)};
  invocation.Give(invocation.Sheet().ValueAt(area.first));
}

void PutValue(const Invocation& invocation) {
  const CellArea& area = invocation.Place().area;
  const std::string text = invocation.Text(0);
  CheckSize(area);
  if (area.IsWholeColumns()) throw NotModelled{"a value in whole columns"};
  switch (invocation.ChangedSheet().EnterText(area, text)) {
    case Entered::kFormula:
      throw ProgramError{"there is a mistake in the formula \"" + text + "\""};
    case Entered::kTooLong:
      throw ProgramError{"the text is longer than a cell can hold"};
    case Entered::kOther:
      throw NotModelled{"\"" + text + "\" in " + CellAddress(area.first) +
                        ", which may become a date or an amount"};
    case Entered::kDone:
      break;
  }
}

void PutNumberFormat(const Invocation& invocation) {
  const std::string format = invocation.Text(0);
  if (format.empty()) throw ProgramError{"no number format"};
  ChangeFormat(invocation, [&](CellFormat& cell) { cell.number_format = format; });
}

void Merge(const Invocation& invocation) {
  const CellArea& area = invocation.Place().area;
  if (invocation.Flag(0)) throw NotModelled{"a merge row by row"};
  if (!invocation.ChangedSheet().Merge(area)) {
    throw NotModelled{"a merge of " + AreaAddress(area) + ", part of which is merged already"};
  }
}

void PutAlignment(const Invocation& invocation) {
  const int number = invocation.Number(0);
  const auto* const found =
      std::find_if(std::begin(kAlignments), std::end(kAlignments),
                   [&](const AlignmentNumber& row) { return row.number == number; });
  if (found == std::end(kAlignments)) throw ProgramError{"no such alignment"};
  ChangeFormat(invocation, [&](CellFormat& cell) { cell.alignment = found->alignment; });
}

void AutoFit(const Invocation& invocation) {
  const ObjectPlace& place = invocation.Place();
  switch (place.span) {
    case RangeSpan::kColumns:
      return invocation.ChangedSheet().FitColumns(place.area);
    case RangeSpan::kRows:
      return invocation.ChangedSheet().FitRows(place.area);
    case RangeSpan::kCells:
      throw ProgramError{"only rows and columns can be fitted"};
  }
}

template <ObjectKind Kind>
void GiveAspect(const Invocation& invocation) {
  invocation.Give(Kind, invocation.Place());
}

void PutColor(const Invocation& invocation) {
  const int number = invocation.Number(0);
  if (number < 0 || number > kLargestColor) throw ProgramError{"no such colour"};
  // The program counts red as the lowest byte.
  const auto rgb = static_cast<unsigned>((number & 0xFF) << 16 | (number & 0xFF00) | number >> 16);
  ChangeFormat(invocation, [&](CellFormat& cell) { cell.fill = CellFill{false, rgb}; });
}

void PutColorIndex(const Invocation& invocation) {
  const int index = invocation.Number(0);
  std::optional<CellFill> fill;
  if (index != kNoColorIndex) {
    if (index < 1 || index > kPaletteSize) throw ProgramError{"no such colour index"};
    fill = CellFill{true, static_cast<unsigned>(index)};
  }
  ChangeFormat(invocation, [&](CellFormat& cell) { cell.fill = fill; });
}

void PutBold(const Invocation& invocation) {
  const bool bold = invocation.Flag(0);
  ChangeFormat(invocation, [&](CellFormat& cell) { cell.bold = bold; });
}

void PutSize(const Invocation& invocation) {
  const double size = invocation.Decimal(0);
  if (size < 1 || size > kLargestFont) throw ProgramError{"no such font size"};
  ChangeFormat(invocation, [&](CellFormat& cell) { cell.size = size; });
}

using K = ObjectKind;

// clang-format off
constexpr SpreadsheetMember kRangeMembers[] = {
    {K::kWorksheet,   0xC5,  kGet,  2, 2, "Excel.Worksheet.Range",            &GiveRange},
    {K::kWorksheet,   0xF1,  kGet,  0, 0, "Excel.Worksheet.Columns",          &GiveAll<RangeSpan::kColumns>},
    {K::kWorksheet,   0x102, kGet,  0, 0, "Excel.Worksheet.Rows",             &GiveAll<RangeSpan::kRows>},
    {K::kWorksheet,   0xEE,  kGet,  0, 0, "Excel.Worksheet.Cells",            &GiveAll<RangeSpan::kCells>},
    {K::kWorksheet,   0x19C, kGet,  0, 0, "Excel.Worksheet.UsedRange",        &GiveUsedRange},
    {K::kRange,       0x56C, kGet,  0, 0, "Excel.Range.Value2",               &GetValue},
    {K::kRange,       0x56C, kPut,  1, 1, "Excel.Range.Value2=",              &PutValue},
    {K::kRange,       0xC1,  kPut,  1, 1, "Excel.Range.NumberFormat=",        &PutNumberFormat},
    {K::kRange,       0x234, kCall, 1, 1, "Excel.Range.Merge",                &Merge},
    {K::kRange,       0x81,  kGet,  0, 0, "Excel.Range.Interior",             &GiveAspect<K::kInterior>},
    {K::kRange,       0x92,  kGet,  0, 0, "Excel.Range.Font",                 &GiveAspect<K::kFont>},
    {K::kRange,       0xF6,  kGet,  0, 0, "Excel.Range.EntireColumn",         &GiveEntireColumn},
    {K::kRange,       0x88,  kPut,  1, 1, "Excel.Range.HorizontalAlignment=", &PutAlignment},
    {K::kRange,       0xF1,  kGet,  0, 0, "Excel.Range.Columns",              &GivePart<RangeSpan::kColumns>},
    {K::kRange,       0x102, kGet,  0, 0, "Excel.Range.Rows",                 &GivePart<RangeSpan::kRows>},
    {K::kRange,       0xEE,  kGet,  0, 0, "Excel.Range.Cells",                &GivePart<RangeSpan::kCells>},
    {K::kRange,       0xAA,  kGet,  2, 2, "Excel.Range.Item",                 &GiveItem},
    {K::kRange,       0x76,  kGet,  0, 0, "Excel.Range.Count",                &GiveCount},
    {K::kRange,       0xED,  kCall, 0, 0, "Excel.Range.AutoFit",              &AutoFit},
    {K::kInterior,    0x63,  kPut,  1, 1, "Excel.Interior.Color=",            &PutColor},
    {K::kInterior,    0x61,  kPut,  1, 1, "Excel.Interior.ColorIndex=",       &PutColorIndex},
    {K::kFont,        0x60,  kPut,  1, 1, "Excel.Font.Bold=",                 &PutBold},
    {K::kFont,        0x68,  kPut,  1, 1, "Excel.Font.Size=",                 &PutSize},
};
// clang-format on

}  // namespace

std::span<const SpreadsheetMember> RangeMembers() {
  return kRangeMembers;
}

}  // namespace wb
