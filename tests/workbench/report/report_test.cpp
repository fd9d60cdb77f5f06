// What the report of a run shows, what it leaves out and how it says so.
#include "workbench/report/report.h"

#include <gtest/gtest.h>

#include "tests/workbench/report/page_text.h"
#include "workbench/report/report_tree.h"

namespace wb {
namespace {

TreeRow Row(int depth, int id, const std::string& name) {
  TreeRow row;
  row.depth = depth;
  row.id = id;
  row.name = name;
  return row;
}

ModelTree PumpTree() {
  return {{Row(0, 0, "pump.asm"), Row(1, 1, "bolt.prt"), Row(1, 2, "group.asm"),
           Row(2, 1, "shaft.prt"), Row(1, 3, "bolt.prt")},
          0};
}

std::string Unmarked(const ModelTree& tree, const TreeLimits& limits = {}) {
  return DrawTree(tree, std::vector<RowMark>(tree.rows.size(), RowMark::kSame), limits);
}

constexpr const char* kHeadings[] = {"Dialogs",
                                     "Message boxes",
                                     "Questions and answers",
                                     "Message area",
                                     "Model tree",
                                     "Feature states",
                                     "Parameters",
                                     "Drawings",
                                     "Files written",
                                     "Workbooks",
                                     "Programs and folders opened",
                                     "Clipboard",
                                     "Host calls"};

TEST(ReportTest, OfACommandThatDidNothingNoPartIsShown) {
  RunRecord record;
  record.commands.resize(1);
  const std::string html = RenderReport(record);
  for (const std::string heading : kHeadings) EXPECT_FALSE(Shows(html, ">" + heading)) << heading;
}

TEST(ReportTest, EveryPartIsShownAndEveryTextEscaped) {
  const std::string evil = "<x>\"&\x01";
  RunRecord record;
  record.script = evil;
  record.facts = {{evil, evil}};
  record.failures = {{evil, 1, evil, 0}};
  CommandRecord command;
  command.name = command.label = command.file = command.status = evil;
  command.dialogs = {{evil, evil, "<div></div>", evil}};
  command.boxes = {{{evil, evil, 0}, 0}};
  command.notes = {evil};
  command.questions = {{evil, evil, evil}};
  command.tree_after.rows = {Row(0, 0, evil)};
  command.states = {{evil, evil, evil, evil}};
  command.parameters = {{evil, evil, evil, evil}};
  command.drawings = {{evil, evil, {{evil, 1}}}};
  command.files = {{evil, evil, evil, evil}};
  command.workbooks = {{evil, "<div></div>"}};
  command.programs = {{evil, evil}};
  command.clipboard = evil;
  command.calls = {{evil, 1}};
  record.commands = {command};
  const std::string html = RenderReport(record);
  EXPECT_FALSE(Shows(html, "<x>"));
  EXPECT_TRUE(Shows(html, "&lt;x&gt;&quot;&amp;\u2401"));
  EXPECT_FALSE(Shows(html, "\x01"));
  for (const std::string heading : kHeadings) EXPECT_TRUE(Shows(html, ">" + heading)) << heading;
}

TEST(ReportTest, FailuresComeFirstAndLeadToTheirCommand) {
  RunRecord record;
  record.commands.resize(2);
  record.failures = {{"a.qms", 7, "wrong", 1}, {"a.qms", 0, "no command", -1}};
  record.failed = 2;
  const std::string html = RenderReport(record);
  EXPECT_TRUE(Shows(html, "0 passed, 2 failed"));
  EXPECT_TRUE(Shows(html, "<a href=\"#c2\">a.qms:7</a>: wrong"));
  EXPECT_TRUE(Shows(html, "<li class=\"t\">a.qms: no command"));
  EXPECT_LT(html.find("wrong"), html.find("<section id=\"c1\">"));
  EXPECT_LT(html.find("<section id=\"c2\">"), html.rfind("wrong"));
}

TEST(ReportTest, CommandsBeyondTheLimitKeepTheirLineAndFailingOnesTheirSection) {
  RunRecord record;
  record.commands.resize(400);
  record.failures = {{"a.qms", 7, "wrong", 390}};
  const std::string html = RenderReport(record);
  EXPECT_EQ(Count(html, "<section "), 301u);
  EXPECT_TRUE(Shows(html, "<section id=\"c391\">"));
  EXPECT_TRUE(Shows(html, "… 99 more commands"));
}

TEST(ReportTreeTest, RowsAreComparedByTheirPathOfComponents) {
  const ModelTree before = PumpTree();
  ModelTree after = before;
  after.rows[3].hidden = true;
  after.rows[1].id = 9;  // one bolt taken out, another put in
  const TreeMarks marks = CompareTrees(before, after, {"bolt.prt"});
  using enum RowMark;
  EXPECT_EQ(marks.before, (std::vector{kSame, kRemoved, kSame, kChanged, kTouched}));
  EXPECT_EQ(marks.after, (std::vector{kSame, kAdded, kSame, kChanged, kTouched}));
}

TEST(ReportTreeTest, OfALongTreeMarkedRowsAreDrawnAndTheRestIsCounted) {
  ModelTree tree = {{Row(0, 0, "top.asm")}, 7};
  for (int i = 1; i <= 1000; ++i) tree.rows.push_back(Row(1, i, "part" + std::to_string(i)));
  EXPECT_EQ(Count(Unmarked(tree), "class=\"n\""), 500u);
  EXPECT_TRUE(Shows(Unmarked(tree), "… 501 more rows"));
  EXPECT_TRUE(Shows(Unmarked(tree), "… 7 more rows"));

  std::vector<RowMark> marks(tree.rows.size(), RowMark::kSame);
  marks[900] = RowMark::kChanged;
  const std::string html = DrawTree(tree, marks, {});
  EXPECT_TRUE(Shows(html, "part900<"));
  EXPECT_EQ(Count(html, "class=\"n\""), 22u);
  EXPECT_TRUE(Shows(html, "… 100 more rows"));
}

TEST(ReportTreeTest, ListsStayBalancedWhereverRowsAreLeftOut) {
  for (const std::size_t most : {1u, 2u, 3u, 4u, 5u}) {
    const std::string html = Unmarked(PumpTree(), {most, 24});
    EXPECT_EQ(Count(html, "<li"), Count(html, "</li>"));
    EXPECT_EQ(Count(html, "<ul"), Count(html, "</ul>"));
    EXPECT_EQ(Count(html, "<details"), Count(html, "</details>"));
  }
}

TEST(ReportTreeTest, DeepTreesAreDrawnDownToALevel) {
  ModelTree chain;
  for (int i = 0; i <= 10'000; ++i) chain.rows.push_back(Row(i, 1, "level"));
  EXPECT_EQ(Count(Unmarked(chain), "class=\"n\""), 25u);
  EXPECT_TRUE(Shows(Unmarked(chain), "… 9,976 rows below level 24"));
}

}  // namespace
}  // namespace wb
