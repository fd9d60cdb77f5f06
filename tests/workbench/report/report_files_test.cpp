// Files that a command wrote: their copies beside the page, their links, and pictures of workbooks.
#include <gtest/gtest.h>

#include <fstream>

#include "tests/workbench/report/page_text.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/report/kept_files.h"
#include "workbench/report/report.h"
#include "workbench/report/workbook_picture.h"

namespace wb {
namespace {

TEST(ReportFilesTest, AFileWrittenIsKeptBesideThePageAndLinkedFromThere) {
  const TemporaryFolder folder("quillmax kept files");
  const std::filesystem::path original = folder.path / PathFromUtf8("summary 明细.xlsx");
  std::ofstream(original) << "first";
  const std::filesystem::path page = folder.path / "page.html";
  const KeptFile kept = KeepFile(page, 3, "desktop/summary 明细.xlsx", original);
  EXPECT_EQ(kept.link, "page_files/3/desktop/summary%20%E6%98%8E%E7%BB%86.xlsx");
  EXPECT_EQ(kept.trouble, "");
  // What becomes of the file later is not what this command wrote.
  std::ofstream(original) << "second";
  const auto text =
      ReadFileBytes(folder.path / "page_files" / "3" / "desktop" / original.filename());
  EXPECT_EQ(text, "first");
  EXPECT_NE(KeepFile(page, 3, "gone", folder.path / "gone").trouble, "");

  RunRecord record;
  record.commands.resize(1);
  record.commands[0].files = {{"/work/a.prt.2", "new", "page_files/1/a.prt.2", ""},
                              {"/work/b.prt.1", "deleted", "", ""},
                              {"/work/c.prt.1", "new", "", "too large"}};
  const std::string html = RenderReport(record);
  EXPECT_TRUE(Shows(html, "<a href=\"page_files/1/a.prt.2\">/work/a.prt.2</a>"));
  EXPECT_TRUE(Shows(html, "<td class=\"t\">/work/b.prt.1</td>"));
  EXPECT_TRUE(Shows(html, "no copy: too large"));
}

TEST(ReportFilesTest, AWorkbookThatCannotBeReadSaysWhy) {
  const TemporaryFolder folder("quillmax kept files");
  std::ofstream(folder.path / "a.xlsx") << "no workbook";
  EXPECT_TRUE(Shows(DrawWorkbookFile(folder.path / "a.xlsx"), "cannot be drawn: "));
}

}  // namespace
}  // namespace wb
