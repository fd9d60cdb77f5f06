// The first rows of a workbook as a table of a report page, with what is seen of its formats.
#pragma once

#include <filesystem>
#include <string>

#include "workbench/workbook/spreadsheet_model.h"

namespace wb {

// The upper left part of the active sheet's cells.
std::string DrawWorkbook(const Workbook& book);

// A file that cannot be read gives a line that says why.
std::string DrawWorkbookFile(const std::filesystem::path& file);

}  // namespace wb
