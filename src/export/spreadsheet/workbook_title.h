// The title of a workbook: the name of the model that is shown, and what the workbook is.
#pragma once

#include <optional>
#include <string>

namespace qm {

// "pump BOM". Nothing, after a message, when the host does not tell the name.
std::optional<std::wstring> TitleOfCurrentModel(const wchar_t* what);

}  // namespace qm
