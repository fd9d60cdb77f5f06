// The table of QmExport: a row for each drawing, with its sheets and parameters of its model.
#pragma once

#include <string>
#include <vector>

#include "frame/dialogs/dialog_table.h"

namespace qm {

inline constexpr wchar_t kExportFile[] = L"QmDrawingsIni.ini";

// The table of the open dialog.
DialogTable ExportTable(const DialogView& dialog);

// Each gives, or tells in the message area, how many columns, rows or cells are not as they should
// be; the run log has the reasons.

// One column for each parameter that the settings file names, instead of those that are there.
long long SetExportColumns(const DialogTable& table);
// A row for each file, behind those that are there; a name may come more than once.
long long AddFileRows(const DialogTable& table, const std::vector<std::wstring>& paths);

// Actions of the dialog.
void ListDrawings(const DialogView& dialog);  // of the chosen source
void SelectAllOrNone(const DialogView& dialog);
void ReverseSelection(const DialogView& dialog);
void LoadSheets(const DialogView& dialog);
void LoadParameters(const DialogView& dialog);

// The names of the drawings in the selected rows; nothing when they cannot be read.
std::optional<std::vector<std::wstring>> SelectedDrawings(const DialogTable& table);

}  // namespace qm
