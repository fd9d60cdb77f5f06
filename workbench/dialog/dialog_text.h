// A dialog in text, for those who have to answer it from a script.
#pragma once

#include <string>

#include "workbench/dialog/dialog.h"

namespace wb {

// A line a field: kind, name, label, value, and whether it is greyed or hidden; of a table its
// columns and first rows. Groups and labels of other fields have none.
std::string DescribeFields(const Dialog& dialog);

// Every row of every table.
std::string DescribeTables(const Dialog& dialog);

}  // namespace wb
