// Rules of the worksheet: cell addresses, and texts that the spreadsheet program would take for
// something else.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qm {

// Addresses have one letter.
inline constexpr size_t kMaxColumns = 26;

// "A1" for column 0, row 1. `column` is less than kMaxColumns.
std::wstring CellAddress(size_t column, size_t row);

// True when a cell without a text format would make a formula, a number, a date, a truth value or
// an error of the text, or would swallow its first character.
bool ReadsAsOther(std::wstring_view text);

// The value to put into such a cell so that the text arrives as it stands.
std::wstring AsPlainText(std::wstring_view text);

// The same for a cell with the text format, which still swallows an apostrophe in front.
std::wstring AsFormattedText(std::wstring_view text);

// A cell's number as its text: the digits before the decimal sign, nothing rounded.
std::wstring WholePart(double number);

}  // namespace qm
