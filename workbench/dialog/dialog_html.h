// Draws a dialog as the user sees it at one moment, as a fragment of a report page.
#pragma once

#include <string>

#include "workbench/dialog/dialog.h"

namespace wb {

// Style sheet that the fragments need once a page. All its rules begin with ".dlg"; the page names
// the colours.
extern const char* const kDialogCss;

// One <div class="dlg"> with title bar, laid-out components and their live values. Hidden
// components keep their cell but are not drawn; the pages of a tab are drawn one after another.
std::string DrawDialog(const Dialog& dialog);

}  // namespace wb
