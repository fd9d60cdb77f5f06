// A dialog under the plug-in's calls and under the user's hands.
#include "workbench/dialog/dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace wb {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kResource = R"((Dialog D
    (Components (SubLayout Group) (RadioGroup Radio) (RadioGroup Blank) (InputPanel Field)
        (TextArea Area) (OptionMenu Option) (CheckButton Check) (PushButton Ok) (Label Note)
        (Table Bill))
    (Resources
        (.Label "Title") (.Layout (Grid (Rows 1 1 1 1 1) (Cols 1 1) Group Blank Field Area Option
            Check Ok Note Bill))
        (Group.Layout (Grid (Rows 1) (Cols 1) Radio))
        (Radio.Names "a" "b") (Radio.SelectedNames "a") (Blank.Names "0" "1")
        (Field.MaxLen 4) (Field.Value "x") (Option.Names "整数" "实数") (Option.Labels "I" "R")
        (Bill.ColumnNames "num" "name" "qty") (Bill.ColumnLabels "N" "Name" "Q")
    )))";

class WorkbenchDialogTest : public testing::Test {
 protected:
  template <class State>
  State& Get(FieldKind kind, const char* name) {
    State* state = nullptr;
    EXPECT_EQ(dialog_.Find(kind, name, &state), UiStatus::kOk);
    return *state;
  }
  TableModel& Bill() { return Get<TableModel>(FieldKind::kTable, "Bill"); }
  ChoiceState& Radio() { return Get<ChoiceState>(FieldKind::kRadioGroup, "Radio"); }
  TextState& Field() { return Get<TextState>(FieldKind::kInputPanel, "Field"); }

  std::string Label(const char* row, const char* column) {
    std::string label = "?";
    EXPECT_EQ(Bill().GetLabel(row, column, &label), UiStatus::kOk);
    return label;
  }

  Dialog dialog_{ParseDialogResource(kResource, "D.res")};
};

TEST_F(WorkbenchDialogTest, MissingComponentAndWrongKindAreToldApart) {
  wb::Field* component = nullptr;
  EXPECT_EQ(dialog_.Find(FieldKind::kCheckButton, "PDFCheck]", &component), UiStatus::kNoField);
  EXPECT_EQ(dialog_.Find(FieldKind::kTextArea, "Field", &component), UiStatus::kWrongKind);
  EXPECT_EQ(dialog_.SetLabel(FieldKind::kInputPanel, "Field", "x"), UiStatus::kWrongKind);
  EXPECT_EQ(component, nullptr);
}

TEST_F(WorkbenchDialogTest, RadioGroupKeepsItsSelectionWhenTheNewOneCannotBe) {
  EXPECT_EQ(Radio().Select({""}), UiStatus::kNotFound);
  EXPECT_EQ(Radio().Select({"a", "b"}), UiStatus::kBadArgument);
  EXPECT_EQ(Radio().Select({}), UiStatus::kBadArgument);
  EXPECT_EQ(Radio().Selected(), Names{"a"});
  // One without a selection in the resource starts with none.
  EXPECT_TRUE(Get<ChoiceState>(FieldKind::kRadioGroup, "Blank").Selected().empty());
}

TEST_F(WorkbenchDialogTest, NewItemsDropSelectionsAndLabelsThatNoLongerFit) {
  auto& option = Get<ChoiceState>(FieldKind::kOptionMenu, "Option");
  EXPECT_EQ(option.SetNames({"1", "1"}), UiStatus::kBadArgument);
  EXPECT_EQ(option.SetNames({"1", "2", "3"}), UiStatus::kOk);
  EXPECT_TRUE(option.Selected().empty());
  EXPECT_EQ(option.LabelOf("2"), "2");
  EXPECT_EQ(option.SetLabels({"one"}), UiStatus::kBadArgument);
}

TEST_F(WorkbenchDialogTest, FieldCountsItsLimitInWideCharacters) {
  EXPECT_EQ(Field().SetValue("千米数字"), UiStatus::kOk);
  EXPECT_EQ(Field().SetValue("abc\U0001F529"), UiStatus::kBadArgument);  // counts 5
  EXPECT_EQ(Field().SetValue("a\nb"), UiStatus::kBadArgument);
  EXPECT_EQ(Field().Value(), "千米数字");
  auto& area = Get<TextState>(FieldKind::kTextArea, "Area");
  EXPECT_EQ(area.SetValue("a\nb"), UiStatus::kOk);
}

TEST_F(WorkbenchDialogTest, RowsAndColumnsGoWhereTheyAreInserted) {
  TableModel& bill = Bill();
  EXPECT_EQ(bill.InsertColumns("num", {"param1", "param2"}), UiStatus::kOk);
  EXPECT_EQ(bill.ColumnNames(), (Names{"num", "param1", "param2", "name", "qty"}));
  EXPECT_EQ(bill.InsertRows("", {"2"}), UiStatus::kOk);
  EXPECT_EQ(bill.InsertRows("2", {"3"}), UiStatus::kOk);
  EXPECT_EQ(bill.InsertRows("", {"1"}), UiStatus::kOk);
  EXPECT_EQ(bill.InsertRows("9", {"4"}), UiStatus::kNotFound);
  EXPECT_EQ(bill.InsertRows("3", {"4", "2"}), UiStatus::kBadArgument);
  EXPECT_EQ(bill.InsertColumns("", {""}), UiStatus::kBadArgument);
  EXPECT_EQ(bill.DeleteRows({"1", "9"}), UiStatus::kNotFound);
  EXPECT_EQ(bill.RowNames(), (Names{"1", "2", "3"}));
  EXPECT_EQ(bill.SetColumnLabels({"too", "few"}), UiStatus::kBadArgument);
  EXPECT_EQ(bill.ColumnLabels(), (Names{"N", "", "", "Name", "Q"}));
}

TEST_F(WorkbenchDialogTest, DeletedColumnsTakeTheirCellsWithThem) {
  TableModel& bill = Bill();
  bill.InsertRows("", {"1"});
  bill.SetLabel("1", "name", "PUMP");
  bill.SetLabel("1", "qty", "2");
  bill.SetBackground("1", "name", 17);
  EXPECT_EQ(bill.DeleteColumns({"name"}), UiStatus::kOk);
  EXPECT_EQ(bill.InsertColumns("qty", {"param1"}), UiStatus::kOk);
  EXPECT_EQ(Label("1", "param1"), "");
  EXPECT_EQ(Label("1", "qty"), "2");
  int color = 0;
  EXPECT_EQ(bill.GetBackground("1", "param1", &color), UiStatus::kOk);
  EXPECT_EQ(color, kNoCellColor);
}

TEST_F(WorkbenchDialogTest, SelectionFollowsPolicyAndDeletedRows) {
  TableModel& bill = Bill();
  bill.InsertRows("", {"1", "2", "3"});
  EXPECT_EQ(bill.SelectRows({"1", "2"}), UiStatus::kBadArgument);  // single unless told otherwise
  EXPECT_EQ(bill.SetPolicy(5), UiStatus::kBadArgument);
  EXPECT_EQ(bill.SetPolicy(3), UiStatus::kOk);
  EXPECT_EQ(bill.SelectRows({"3", "1"}), UiStatus::kOk);
  EXPECT_EQ(bill.SelectRows({"4"}), UiStatus::kNotFound);
  EXPECT_EQ(bill.SelectedRows(), (Names{"1", "3"}));
  bill.SetFocus("3", "name");
  bill.DeleteRows({"3"});
  EXPECT_EQ(bill.SelectedRows(), Names{"1"});
  std::string row, column;
  EXPECT_EQ(bill.GetFocus(&row, &column), UiStatus::kNotFound);
}

// Finishes at once when each step costs the same; rows found by scanning would take minutes.
TEST_F(WorkbenchDialogTest, LargeTableFillsReadsAndEmptiesRowByRow) {
  constexpr int kRows = 100000;
  TableModel& bill = Bill();
  std::string last;
  for (int i = 1; i <= kRows; ++i) {
    const std::string name = std::to_string(i);
    ASSERT_EQ(bill.InsertRows(last, {name}), UiStatus::kOk);
    ASSERT_EQ(bill.SetLabel(name, "qty", name), UiStatus::kOk);
    last = name;
  }
  EXPECT_EQ(Label("99999", "qty"), "99999");
  for (int i = kRows; i > kRows / 2; --i) {
    ASSERT_EQ(bill.DeleteRows({std::to_string(i)}), UiStatus::kOk);
  }
  EXPECT_EQ(bill.DeleteRows(bill.RowNames()), UiStatus::kOk);
  EXPECT_TRUE(bill.Rows().empty());
}

TEST_F(WorkbenchDialogTest, UserCannotDoWhatADialogDoesNotOffer) {
  dialog_.SetEnabled(FieldKind::kPushButton, "Ok", false);
  dialog_.SetVisible(FieldKind::kSubLayout, "Group", false);
  Get<TextState>(FieldKind::kTextArea, "Area").SetEditable(false);
  const struct {
    UserOutcome outcome;
    const char* refusal;
  } cases[] = {
      {dialog_.UserPress("Apply"), "dialog D has no component Apply"},
      {dialog_.UserPress("Ok"), "PushButton Ok is greyed out"},
      {dialog_.UserPress("Check"), "CheckButton Check is not a push button"},
      {dialog_.UserSelect("Radio", {"b"}), "RadioGroup Radio is not visible"},
      {dialog_.UserSelect("Blank", {"2"}), "RadioGroup Blank has no item 2; it has 0, 1"},
      {dialog_.UserSelect("Note", {"2"}), "Label Note has nothing to select"},
      {dialog_.UserSelect("Bill", {"7"}), "Table Bill has no row 7; it is empty"},
      {dialog_.UserSetField("Field", "12345"), "InputPanel Field takes 4 characters at most"},
      {dialog_.UserSetField("Area", "x"), "TextArea Area is read-only"},
      {dialog_.UserDoubleClick("Option", "整数"), "OptionMenu Option has no rows to double-click"},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(item.outcome.refusal, item.refusal);
    EXPECT_EQ(item.outcome.event, UiEvent::kNone);
  }
  EXPECT_EQ(Field().Value(), "x");
  EXPECT_EQ(Radio().Selected(), Names{"a"});
}

TEST_F(WorkbenchDialogTest, AComponentInACellGoesWithItsRow) {
  wb::Field* table = nullptr;
  ASSERT_EQ(dialog_.Find(FieldKind::kTable, "Bill", &table), UiStatus::kOk);
  const auto copy = [&](const char* source, const char* row, const char* name) {
    return dialog_.CopyIntoCell(source, *table, row, "name", name);
  };
  Bill().InsertRows("", {"1", "2"});
  EXPECT_EQ(copy("Field", "1", "copy1"), UiStatus::kOk);
  EXPECT_EQ(copy("Field", "2", "copy1"), UiStatus::kBadArgument);
  // The limit of the one it is a copy of is its own, too.
  EXPECT_TRUE(dialog_.UserSetField("copy1", "four").Done());
  EXPECT_FALSE(dialog_.UserSetField("copy1", "fives").Done());
  // Going into it gives its cell the focus.
  EXPECT_EQ(dialog_.UserFocusCell("Bill", "1", "num").event, UiEvent::kArm);
  EXPECT_EQ(dialog_.UserGoInto("copy1").target, "copy1");
  std::string row, column;
  EXPECT_EQ(Bill().GetFocus(&row, &column), UiStatus::kOk);
  EXPECT_EQ(row + column, "1name");
  Bill().DeleteRows({"1"});
  // A row of the same name starts without it.
  Bill().InsertRows("", {"1"});
  EXPECT_FALSE(dialog_.UserGoInto("copy1").Done());
  EXPECT_EQ(copy("Field", "1", "copy1"), UiStatus::kOk);
  EXPECT_EQ(Bill().DropComponent("1", "name"), UiStatus::kOk);
  EXPECT_EQ(Bill().DropComponent("1", "name"), UiStatus::kNotFound);
}

}  // namespace
}  // namespace wb
