// The bill's table in the dialog: its columns as the settings file names them, and its rows.
#pragma once

#include "export/bill/bill_rules.h"
#include "frame/dialogs/dialog_table.h"

namespace qm {

// Settings file with the columns.
inline constexpr wchar_t kBillFile[] = L"QmBom.ini";

inline constexpr char kBillTable[] = "bom_list";

// Background of an assembly's cells; also how the model type of a row is told later.
inline constexpr ProUIColorType kAssemblyColor = 17;

// The column that shows the model's name.
inline constexpr wchar_t kNameLabel[] = L"模型名称";

// Empties the table and gives it the columns of one kind of bill. Gives how many were left out,
// which the log explains.
long long SetBillColumns(const DialogTable& table, BillKind kind);

// Replaces the rows of the table by the bill of `assembly`. `depth` counts for the level bill only.
// Tells how many components, rows and cells were left out, and `left_out` more.
void FillBill(const DialogTable& table, ProMdl assembly, BillKind kind, int depth,
              long long left_out = 0);

// False for the columns that show something in each row of a bill: blank, one was not read.
bool MayBeBlank(const std::string& column, const std::wstring& label);

}  // namespace qm
