// Addresses, and texts that a cell without a text format would change.
#include "export/spreadsheet/sheet_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(CellAddress, IsALetterAndTheRow) {
  EXPECT_EQ(CellAddress(0, 1), L"A1");
  EXPECT_EQ(CellAddress(kMaxColumns - 1, 100'003), L"Z100003");
}

TEST(AsPlainText, MarksWhatACellWouldReadAsSomethingElse) {
  for (const wchar_t* const text : {L"=SUM(A1)",   L"+49",          L"-PUMP BOM",
                                    L"@home",      L" =1",          L"'quoted",
                                    L"#N/A",       L"＝1",          L"001",
                                    L"1.50",       L"1e5",          L"12%",
                                    L"￥5",        L"3/4",          L"1-2",
                                    L"2024-05-06", L"2024年5月6日", L"9:30 pm",
                                    L"上午9:30",   L"May 5",        L"12-DEC",
                                    L"TRUE",       L"false ",       L"１２",
                                    L"(5)",        L"1,000",        L"12345678901234567890"}) {
    EXPECT_EQ(AsPlainText(text), L"'" + std::wstring(text));
  }
}

TEST(AsPlainText, LeavesOrdinaryTitlesAndLabelsAlone) {
  for (const wchar_t* const text :
       {L"", L" ", L"PUMP BOM", L"1001 BOM", L"序号", L"层级1", L"A1", L"E5", L"M8×20", L"Φ10",
        L"0x10", L"3D", L"名称=值", L"a-b", L"true north", L"5 重命名", L"May"}) {
    EXPECT_EQ(AsPlainText(text), text);
  }
}

}  // namespace
}  // namespace qm
