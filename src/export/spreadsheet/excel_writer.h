// Writes a table into a new workbook by way of the spreadsheet program: title, column labels, rows.
#pragma once

#include <string>

#include "export/spreadsheet/workbook_table.h"

namespace qm {

// False, after a message, when nothing was written: the program cannot be started, a call to it
// fails, or the table has too many columns. `path` is then what it was before, never part of a
// workbook. Once it is saved it stays, also when the program then fails or does not end, which is
// told. Needs COM.
bool WriteWorkbook(const WorkbookTable& table, const std::wstring& path);

}  // namespace qm
