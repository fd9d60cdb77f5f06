// The name of an old file while its successor is written.
#include "export/spreadsheet/old_file_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(AsidePath, SaysWhatTheFileIsAndKeepsFolderAndExtension) {
  EXPECT_EQ(AsidePath(L"C:\\work.d\\泵.v2.xlsx", 1), L"C:\\work.d\\泵.v2.old.xlsx");
  EXPECT_EQ(AsidePath(L"C:\\work.d\\bill.xlsx", 12), L"C:\\work.d\\bill.old12.xlsx");
  EXPECT_EQ(AsidePath(L"C:\\work.d\\bill", 1), L"C:\\work.d\\bill.old");
  EXPECT_EQ(AsidePath(L"\\\\server\\share/.xlsx", 2), L"\\\\server\\share/.old2.xlsx");
  EXPECT_EQ(AsidePath(L"bill.xlsx", 1), L"bill.old.xlsx");
}

TEST(AsidePath, IsNoLongerThanWindowsTakes) {
  const std::wstring folder = L"C:\\" + std::wstring(200, L'f') + L"\\";
  const std::wstring fits = folder + std::wstring(42, L'b') + L".xlsx";  // 251 characters
  EXPECT_EQ(AsidePath(fits, 1), folder + std::wstring(42, L'b') + L".old.xlsx");
  EXPECT_EQ(AsidePath(fits, 2), folder + std::wstring(41, L'b') + L".old2.xlsx");
  // A longer path that Windows has taken is the bound itself.
  const std::wstring longest = folder + std::wstring(50, L'b') + L".xlsx";  // 259
  EXPECT_EQ(AsidePath(longest, 1), folder + std::wstring(46, L'b') + L".old.xlsx");
  // No half of a character is left.
  EXPECT_EQ(AsidePath(folder + std::wstring(45, L'b') + L"\xD83D\xDDFF" + L"bbb.xlsx", 1),
            folder + std::wstring(45, L'b') + L".old.xlsx");
}

}  // namespace
}  // namespace qm
