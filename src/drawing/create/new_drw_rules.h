// Which of the user's drawing templates stands for a kind of model and a size of sheet.
#pragma once

#include <string>
#include <string_view>

namespace qm {

// Section of the settings file, by the names of the dialog's buttons; empty for any other pair.
std::wstring TemplateSection(std::string_view size, std::string_view kind);

}  // namespace qm
