// Workbook files (.xlsx): written so that any spreadsheet program opens them, and read whichever
// program saved them. Values, number formats, bold, font size, fill, alignment, merges and column
// widths are kept; of a formula the last result is taken.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "workbench/workbook/spreadsheet_model.h"

namespace wb {

// The text names the file, the place inside it and the reason.
struct XlsxError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string XlsxBytes(const Workbook& book);
// Through a neighbour that takes the file's place, so that a failed write leaves what was there.
// Throws XlsxError.
void WriteXlsx(const Workbook& book, const std::filesystem::path& file);

// Throws XlsxError.
Workbook ReadXlsx(const std::filesystem::path& file);

}  // namespace wb
