// Reads the cells of a workbook's active sheet by way of the spreadsheet program.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace qm {

using SheetTexts = std::vector<std::vector<std::wstring>>;  // row by row

// The used rows from row 1 on, each with the texts of `columns` columns. A number gives the digits
// before its decimal sign, an empty cell or an error an empty text. Nothing, after a message, when
// the program cannot be started or a call to it fails. The program is ended in any case. Needs COM.
std::optional<SheetTexts> ReadWorkbook(const std::wstring& path, size_t columns);

}  // namespace qm
