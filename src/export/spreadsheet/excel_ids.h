// The members of the spreadsheet program's object model that are used here, by the fixed numbers of
// its published type library: no member is looked up by name.
#pragma once

#include "export/spreadsheet/dispatch.h"

namespace qm::excel {

// clang-format off
inline constexpr Member kWorkbooks           = {0x23C, L"Workbooks"};
inline constexpr Member kAdd                 = {0xB5,  L"Add"};
inline constexpr Member kOpen                = {0x783, L"Open"};
inline constexpr Member kSheets              = {0x1E5, L"Sheets"};
inline constexpr Member kWorksheets          = {0x1EE, L"Worksheets"};
inline constexpr Member kItem                = {0xAA,  L"Item"};
inline constexpr Member kActiveSheet         = {0x133, L"ActiveSheet"};
inline constexpr Member kRange               = {0xC5,  L"Range"};
inline constexpr Member kValue2              = {0x56C, L"Value2"};
inline constexpr Member kNumberFormat        = {0xC1,  L"NumberFormat"};
inline constexpr Member kMerge               = {0x234, L"Merge"};
inline constexpr Member kInterior            = {0x81,  L"Interior"};
inline constexpr Member kColor               = {0x63,  L"Color"};
inline constexpr Member kColorIndex          = {0x61,  L"ColorIndex"};
inline constexpr Member kEntireColumn        = {0xF6,  L"EntireColumn"};
inline constexpr Member kHorizontalAlignment = {0x88,  L"HorizontalAlignment"};
inline constexpr Member kFont                = {0x92,  L"Font"};
inline constexpr Member kBold                = {0x60,  L"Bold"};
inline constexpr Member kSize                = {0x68,  L"Size"};
inline constexpr Member kColumns             = {0xF1,  L"Columns"};
inline constexpr Member kRows                = {0x102, L"Rows"};
inline constexpr Member kAutoFit             = {0xED,  L"AutoFit"};
inline constexpr Member kUsedRange           = {0x19C, L"UsedRange"};
inline constexpr Member kCount               = {0x76,  L"Count"};
inline constexpr Member kCells               = {0xEE,  L"Cells"};
inline constexpr Member kVisible             = {0x22E, L"Visible"};
inline constexpr Member kUserControl         = {0x4BA, L"UserControl"};
inline constexpr Member kSaveCopyAs          = {0xAF,  L"SaveCopyAs"};
inline constexpr Member kSaved               = {0x12A, L"Saved"};
inline constexpr Member kClose               = {0x115, L"Close"};
inline constexpr Member kQuit                = {0x12E, L"Quit"};
// clang-format on

// Fixed numbers of its properties.
inline constexpr int kYellow = 65535;
inline constexpr int kLightGreenIndex = 35;
inline constexpr int kCentre = -4108;
inline constexpr wchar_t kTextFormat[] = L"@";

}  // namespace qm::excel
