// What the drawing of a dialog shows, and what it must not let through.
#include "workbench/dialog/dialog_html.h"

#include <gtest/gtest.h>

#include <string>

namespace wb {
namespace {

constexpr const char* kHtmlResource = R"((Dialog D
    (Components (InputPanel Field) (RadioGroup Radio) (PushButton Ok) (Table Bill))
    (Resources
        (.Label "<Title> & \"more\"") (.DefaultButton "Ok")
        (.Layout (Grid (Rows 1 1 1 1) (Cols 1) Field Radio Ok Bill))
        (Field.HelpText "\"><b>") (Radio.Names "a" "b") (Radio.Labels "Ay" "Bee")
        (Ok.Label "OK") (Bill.ColumnNames "num") (Bill.ColumnLabels "No")
    )))";

class DialogHtmlTest : public testing::Test {
 protected:
  bool Shows(const std::string& part) const {
    return DrawDialog(dialog_).find(part) != std::string::npos;
  }
  TableModel& Bill() {
    TableModel* table = nullptr;
    EXPECT_EQ(dialog_.Find(FieldKind::kTable, "Bill", &table), UiStatus::kOk);
    return *table;
  }

  Dialog dialog_{ParseDialogResource(kHtmlResource, "D.res")};
};

TEST_F(DialogHtmlTest, EveryTextIsEscaped) {
  dialog_.UserSetField("Field", "<script>'x'</script>");
  Bill().InsertRows("", {"1"});
  Bill().SetLabel("1", "num", "a<b>&");
  EXPECT_TRUE(Shows("&lt;Title&gt; &amp; &quot;more&quot;"));
  EXPECT_TRUE(Shows("title=\"&quot;&gt;&lt;b&gt;\""));
  EXPECT_TRUE(Shows("a&lt;b&gt;&amp;"));
  EXPECT_FALSE(Shows("<script>"));
}

TEST_F(DialogHtmlTest, ShowsTheLiveState) {
  EXPECT_TRUE(Shows("<div><i></i>Bee</div>"));
  EXPECT_TRUE(Shows("dlg-button dlg-default\" data-name=\"Ok\""));
  dialog_.UserSelect("Radio", {"b"});
  dialog_.SetEnabled(FieldKind::kPushButton, "Ok", false);
  dialog_.SetVisible(FieldKind::kInputPanel, "Field", false);
  EXPECT_TRUE(Shows("<div class=\"dlg-on\"><i></i>Bee</div>"));
  EXPECT_TRUE(Shows("dlg-button dlg-default dlg-off\" data-name=\"Ok\""));
  EXPECT_FALSE(Shows("data-name=\"Field\""));
}

TEST_F(DialogHtmlTest, LongTablesAreCutAndColoursDrawn) {
  std::vector<std::string> names;
  for (int i = 1; i <= 203; ++i) names.push_back(std::to_string(i));
  Bill().InsertRows("", names);
  Bill().SetLabel("200", "num", "last drawn");
  Bill().SetLabel("201", "num", "not drawn");
  Bill().SetBackground("1", "num", 17);
  // Both colours stand there, since a dark page has light ink.
  EXPECT_TRUE(Shows("<td style=\"background:#e6f2b8;color:#1b1f24;\">"));
  EXPECT_TRUE(Shows("last drawn"));
  EXPECT_FALSE(Shows("not drawn"));
  EXPECT_TRUE(Shows("… 3 more rows"));
}

}  // namespace
}  // namespace wb
