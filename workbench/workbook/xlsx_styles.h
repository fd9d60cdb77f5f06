// The table of cell formats of a workbook file: every distinct format once, cells refer to it by
// number.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/workbook/spreadsheet_model.h"

namespace wb {

// Collects formats while sheets are written.
class XlsxStyleWriter {
 public:
  XlsxStyleWriter() { Number({}); }
  // The number that cells of this format refer to; 0 is the standard format.
  size_t Number(const CellFormat& format);
  // The document xl/styles.xml.
  std::string Document() const;

 private:
  std::map<CellFormat, size_t> numbers_;
  std::vector<CellFormat> formats_;
};

// The formats of a file by number. Throws LineError.
std::vector<CellFormat> ReadXlsxStyles(std::string_view document, const std::string& name);

}  // namespace wb
