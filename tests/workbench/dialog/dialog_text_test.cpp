// What a user calls the fields of a dialog.
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

}  // namespace
}  // namespace wb
