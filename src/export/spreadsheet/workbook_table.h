// A table on its way into a workbook.
#pragma once

#include <string>
#include <vector>

namespace qm {

struct WorkbookCell {
  std::wstring text;
  bool tinted = false;
};

struct WorkbookTable {
  std::wstring title;
  std::vector<std::wstring> labels;             // one a column
  std::vector<std::vector<WorkbookCell>> rows;  // each with a cell for every column
};

}  // namespace qm
