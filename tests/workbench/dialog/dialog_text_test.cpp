// What a user calls the fields of a dialog, and how a dialog is told in text.
#include "workbench/dialog/dialog_text.h"

#include <gtest/gtest.h>

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr const char* kTextResource = R"((Dialog D
    (Components (SubLayout Target) (Label KindLabel) (RadioGroup Kind) (Label WordsLabel)
        (InputPanel Words) (SubLayout Tools) (Label Kind2Label) (RadioGroup Kind2) (Label NumLabel)
        (OptionMenu Num) (CheckButton Order) (Label AreaLabel) (TextArea Area) (PushButton Add)
        (PushButton Pick1) (PushButton Pick2) (Table Bill) (Label Note))
    (Resources
        (.Label "Title")
        (.Layout (Grid (Rows 1 1 1 1 1 1) (Cols 1) Target Tools AreaLabel Area
            (Grid (Rows 1) (Cols 1 1 1 1) Add Pick1 Pick2 Note) Bill))
        (Target.Label "参数对象") (Target.Layout (Grid (Rows 1 1) (Cols 1 1)
            KindLabel Kind WordsLabel Words))
        (Tools.Label "工具") (Tools.Layout (Grid (Rows 1 1) (Cols 1 1)
            Kind2Label Kind2 NumLabel (Grid (Rows 1) (Cols 1 1) Num Order)))
        (KindLabel.Label "模型类型") (Kind2Label.Label "模型类型")
        (Kind.Names "a" "b") (Kind.Labels "组件" "零件") (Kind.SelectedNames "a")
        (Kind2.Names "a" "b")
        (WordsLabel.Label "关键字:") (Words.Value "x") (NumLabel.Label "小数位数") (Num.Names "0" "1")
        (Order.Label "排列") (AreaLabel.Label "备注") (Area.Value "p\nq") (Add.Label "添加")
        (Pick1.Label "选择...") (Pick2.Label "选择...") (Note.Label "a note")
        (Bill.ColumnNames "num" "name") (Bill.ColumnLabels "序号" "模型")
    )))";

class DialogTextTest : public testing::Test {
 protected:
  // Names of the fields that are called so.
  std::string Called(const char* text) const {
    std::vector<std::string> names;
    for (const Field* const field : dialog_.FieldsCalled(text)) names.push_back(field->name);
    return Join(" ", names);
  }

  Dialog dialog_{ParseDialogResource(kTextResource, "D.res")};
};

TEST_F(DialogTextTest, FieldsAndButtonsAreCalledByNameByLabelOrByGroupAndLabel) {
  EXPECT_EQ(Called("Words"), "Words");
  EXPECT_EQ(Called("关键字"), "Words");
  EXPECT_EQ(Called("关键字:"), "Words");
  EXPECT_EQ(Called("添加"), "Add");
  EXPECT_EQ(Called("排列"), "Order");
  EXPECT_EQ(Called("小数位数"), "Num");  // the first field of the grid beside it
  EXPECT_EQ(Called("备注"), "Area");     // the label stands above it
  EXPECT_EQ(Called("选择..."), "Pick1 Pick2");
  EXPECT_EQ(Called("模型类型"), "Kind Kind2");
  EXPECT_EQ(Called("工具/模型类型"), "Kind2");
  EXPECT_EQ(Called("a note"), "Note");
  EXPECT_EQ(Called("Nothing"), "");
  EXPECT_EQ(Called(""), "");
}

TEST_F(DialogTextTest, LabelsAreThoseThatTheUserSeesNow) {
  dialog_.SetLabel(FieldKind::kLabel, "WordsLabel", "其他");
  EXPECT_EQ(Called("关键字"), "");
  EXPECT_EQ(Called("其他"), "Words");
}

TEST_F(DialogTextTest, ADialogIsToldWithNamesLabelsAndValues) {
  dialog_.SetEnabled(FieldKind::kSubLayout, "Target", false);
  TableModel* bill = nullptr;
  ASSERT_EQ(dialog_.Find(FieldKind::kTable, "Bill", &bill), UiStatus::kOk);
  bill->InsertRows("", {"1"});
  bill->SetLabel("1", "name", "bolt");
  EXPECT_EQ(DescribeFields(dialog_),
            "RadioGroup Kind \"模型类型\": a \"组件\" of a \"组件\", b \"零件\" (greyed)\n"
            "InputPanel Words \"关键字:\": \"x\" (greyed)\n"
            "RadioGroup Kind2 \"模型类型\": none of a, b\n"
            "OptionMenu Num \"小数位数\": 0 of 0, 1\n"
            "CheckButton Order \"排列\": unset\n"
            "TextArea Area \"备注\": \"p\\nq\"\n"
            "PushButton Add \"添加\"\n"
            "PushButton Pick1 \"选择...\"\n"
            "PushButton Pick2 \"选择...\"\n"
            "Table Bill: 1 rows x 2 columns (num \"序号\", name \"模型\")\n"
            "  row 1: \"\" \"bolt\"\n"
            "Label Note \"a note\"\n");
}

}  // namespace
}  // namespace wb
