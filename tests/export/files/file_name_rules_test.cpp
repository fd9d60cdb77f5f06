// Names that Windows can hold.
#include "export/files/file_name_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(FileName, WindowsRefusesCharactersDevicesAndEnds) {
  for (const wchar_t* name : {L"a.dwg", L".dwg", L" a .dwg", L"图 纸-1.pdf", L"com.dwg",
                              L"com10.dwg", L"console.dwg", L"a.con.dwg"}) {
    EXPECT_TRUE(IsWindowsFileName(name)) << std::string(name, name + wcslen(name));
  }
  for (const wchar_t* name : {L"", L"a/b.dwg", L"a\\b.dwg", L"a:b.dwg", L"a?.dwg", L"a*.dwg",
                              L"\"a\".dwg", L"<a>.dwg", L"a|b.dwg", L"a\tb.dwg", L"CON.dwg",
                              L"Com1.x.dwg", L"nul .dwg", L"lpt9.dwg", L"a.dwg.", L"a.dwg "}) {
    EXPECT_FALSE(IsWindowsFileName(name)) << std::string(name, name + wcslen(name));
  }
  EXPECT_TRUE(IsWindowsFileName(std::wstring(251, L'a') + L".dwg"));
  EXPECT_FALSE(IsWindowsFileName(std::wstring(252, L'a') + L".dwg"));
}

}  // namespace
}  // namespace qm
