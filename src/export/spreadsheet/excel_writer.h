// Writes a table into a new workbook by way of the spreadsheet program: title, column labels, rows.
#pragma once

#include <string>

#include "export/spreadsheet/workbook_table.h"

namespace qm {

// False, after a message, when nothing was written: the program cannot be started, a call to it
// fails, or the table has too many columns. The program is ended in any case, and `path` is then
// what it was before or absent, never part of a workbook. Needs COM.
bool WriteWorkbook(const WorkbookTable& table, const std::wstring& path);

}  // namespace qm
