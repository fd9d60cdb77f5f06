// Host functions for tables of dialogs: what they answer, and what they hold against the plug-in.
#include "tests/workbench/host/host_fixture.h"
#include "workbench/host/call.h"
#include "workbench/host/host_types.h"

namespace wb {
namespace {

constexpr const char* kDialog = "Bill";
constexpr const char* kResource = R"((Dialog Bill
    (Components (Table list) (RadioGroup kind) (InputPanel typed))
    (Resources
        (.Label "Bill")
        (.Layout (Grid (Rows 0 0 0) (Cols 1) list kind typed))
        (list.ColumnNames "num") (list.ColumnLabels "序号")
        (kind.Names "sum" "level") (kind.SelectedNames "sum")
    )
)
)";

class UiTable : public HostFixture {
 protected:
  UiTable() {
    WriteFile("text/resource/Bill.res", std::string("\xEF\xBB\xBF") + kResource);
    EXPECT_EQ(ProUIDialogCreate(kDialog, kDialog), PRO_TK_NO_ERROR);
  }
  ~UiTable() override { ProUIDialogDestroy(kDialog); }

  static void InsertRow() {
    char name[] = "1";
    char* names[] = {name};
    EXPECT_EQ(ProUITableRowsInsert(kDialog, "list", "", 1, names), PRO_TK_NO_ERROR);
  }
};

TEST_F(UiTable, WideLabelsAreOnAccountUntilFreedWithTheirCount) {
  int count = 0;
  wchar_t** labels = nullptr;
  EXPECT_EQ(ProUITableColumnlabelsGet(kDialog, "list", &count, &labels), PRO_TK_NO_ERROR);
  ASSERT_EQ(count, 1);
  EXPECT_EQ(std::wstring(labels[0]), L"序号");
  const long before = 1;  // the dialog itself came first
  EXPECT_EQ(host_.accounts.Describe(before),
            (Lines{"wide text array from ProUITableColumnlabelsGet (call 2)"}));
  ProWstringarrayFree(labels, 2);
  ProStringarrayFree(reinterpret_cast<char**>(labels), 1);
  EXPECT_EQ(Breaches(),
            (Lines{"plug-in misused ProWstringarrayFree: count 2 for an array of 1",
                   "plug-in misused ProStringarrayFree: wide text array given as string array"}));
  EXPECT_EQ(ProWstringarrayFree(labels, 1), PRO_TK_NO_ERROR);
  EXPECT_EQ(host_.accounts.Describe(before), Lines{});
}

TEST_F(UiTable, LabelsMustFitTheColumns) {
  wchar_t text[] = L"a";
  wchar_t* labels[] = {text, text};
  EXPECT_EQ(ProUITableColumnlabelsSet(kDialog, "list", 2, labels), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProUITableColumnlabelsSet(kDialog, "list", 1, labels), PRO_TK_NO_ERROR);
}

TEST_F(UiTable, ACopyInACellIsAFieldAndItsNameIsUnknownWhenItHasGone) {
  InsertRow();
  const auto value = [&] {
    wchar_t* text = nullptr;
    const ProError status = ProUIInputpanelValueGet(kDialog, "copy", &text);
    if (status == PRO_TK_NO_ERROR) ProWstringFree(text);
    return status;
  };
  EXPECT_EQ(value(), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(ProUITableCellComponentCopy(kDialog, "list", "1", "num", "typed", "copy"),
            PRO_TK_NO_ERROR);
  EXPECT_EQ(ProUITableCellComponentCopy(kDialog, "list", "1", "num", "typed", "copy"),
            PRO_TK_E_FOUND);
  EXPECT_EQ(value(), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProUITableCellComponentDelete(kDialog, "list", "1", "num"), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProUITableCellComponentDelete(kDialog, "list", "1", "num"), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(value(), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(Breaches(), Lines{});
}

TEST_F(UiTable, TheFocusIsToldInNamesThatAreFreedOneByOne) {
  InsertRow();
  char* row = nullptr;
  char* column = nullptr;
  EXPECT_EQ(ProUITableFocusCellGet(kDialog, "list", &row, &column), PRO_TK_E_NOT_FOUND);
  EXPECT_TRUE(host_.dialogs.Find(kDialog)->state.UserFocusCell("list", "1", "num").Done());
  EXPECT_EQ(ProUITableFocusCellGet(kDialog, "list", &row, &column), PRO_TK_NO_ERROR);
  EXPECT_EQ(std::string(row) + column, "1num");
  ProStringFree(row);
  ProStringFree(column);
  EXPECT_EQ(Breaches(), Lines{});
  ProStringFree(column);
  EXPECT_EQ(Breaches().size(), 1u);
}

}  // namespace
}  // namespace wb
