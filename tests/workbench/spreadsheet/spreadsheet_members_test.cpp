// What the spreadsheet stand-in refuses.
#include <functional>

#include "tests/workbench/spreadsheet/spreadsheet_fixture.h"

namespace wb {
namespace {

using SpreadsheetMembers = SpreadsheetFixture;

TEST_F(SpreadsheetMembers, WrongCallsAreRefusedAndHeldAgainstThePlugin) {
  const Opened excel = OpenNew();
  const TestObject cell = excel.Cell("A1");
  const struct {
    std::function<void()> call;
    HRESULT result;
    const char* breach;
  } kCases[] = {
      {[&] { cell.Value(0x123); }, DISP_E_MEMBERNOTFOUND, "Range has no member 0x123"},
      {[&] { excel.book.Get(kRange, "A1", "A1"); }, DISP_E_MEMBERNOTFOUND,
       "Workbook has no member 0xC5"},
      {[&] { cell.Call(kInterior); }, DISP_E_MEMBERNOTFOUND, "Range.Interior called as a method"},
      {[&] { cell.Invoke(kValue2, DISPATCH_PROPERTYGET | DISPATCH_METHOD); }, DISP_E_MEMBERNOTFOUND,
       "Range.Value2 called as a mixture"},
      {[&] { cell.Call(kMerge); }, DISP_E_BADPARAMCOUNT, "Range.Merge: 0 arguments"},
      {[&] { excel.sheet.Get(kRange, "[1", "[1"); }, DISP_E_BADINDEX,
       "Worksheet.Range: \"[1\" is no cell"},
      {[&] { cell.Put(kNumberFormat, 5); }, DISP_E_TYPEMISMATCH,
       "Range.NumberFormat=: argument 1 is no text"},
      {[&] { excel.book.Call(kSaveCopyAs, "bill.xlsx"); }, E_INVALIDARG,
       "Workbook.SaveCopyAs: a file without its folder: \"bill.xlsx\""},
  };
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.breach);
    host_.events.Forget<Breach>();
    row.call();
    EXPECT_EQ(TestObject::result, row.result);
    EXPECT_EQ(Breaches(), Lines{"plug-in misused Excel: " + std::string(row.breach)});
  }
  wchar_t name[] = L"Value2";
  wchar_t* names[] = {name};
  DISPID id = 0;
  host_.events.Forget<Breach>();
  EXPECT_EQ(cell.get()->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(host_.events.All<Breach>().size(), 1u);
}

}  // namespace
}  // namespace wb
