// The report of a real run: what commands wrote, opened and left in the clipboard, and links that
// hold when the page is moved with its files.
#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "tests/workbench/temporary_folder.h"
#include "tests/workbench/test_paths.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/reasons/own_path.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

constexpr const char* kScript = R"(part bolt
assembly pump
component pump <- bolt
open pump
select bolt
run QmMdlNameCopy
run QmBom with
  dialog QmBom
    press 导出Excel
    file "{desktop}\\明细 表"
    press 关闭
  end
end
run QmOpenDir
run QmConfig with
  dialog QmConfig
    choose 恢复上次工作目录 不恢复
    press 保存
    close
  end
end
run QmQQGroup
)";

std::string Decoded(const std::string& link) {
  std::string text;
  for (size_t i = 0; i < link.size(); ++i) {
    const bool escaped = link[i] == '%';
    text += escaped ? static_cast<char>(std::stoi(link.substr(i + 1, 2), nullptr, 16)) : link[i];
    if (escaped) i += 2;
  }
  return text;
}

class RunReportTest : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(folder_.path / "out");
    std::ofstream(folder_.path / "script.qms", std::ios::binary) << kScript;
    output_ = OutputOf(TestBinaryFolder() / "workbench.exe",
                       {"run", PathToUtf8(folder_.path / "script.qms"), "--report",
                        PathToUtf8(folder_.path / "out" / "report.html")})
                  .value_or("it cannot be started");
    fs::rename(folder_.path / "out", folder_.path / "moved");
    html_ = ReadFileBytes(folder_.path / "moved" / "report.html").value_or("");
  }
  bool Shows(const std::string& part) const { return html_.find(part) != std::string::npos; }

  const TemporaryFolder folder_{"quillmax run report"};
  std::string output_;
  std::string html_;
};

TEST_F(RunReportTest, ShowsOutcomesWithLinksThatHoldWhereverItIsMoved) {
  static const std::regex kLink("<a href=\"([^\"#]+)\">");
  std::vector<std::string> linked;
  for (std::sregex_iterator at(html_.begin(), html_.end(), kLink), end; at != end; ++at) {
    linked.push_back(Decoded((*at)[1]));
    EXPECT_TRUE(fs::exists(folder_.path / "moved" / PathFromUtf8(linked.back()))) << linked.back();
  }
  EXPECT_EQ(linked, (std::vector<std::string>{"report_files/2/desktop/明细 表.xlsx",
                                              "report_files/4/QMconfig/QmConfig.ini"}))
      << output_;
  EXPECT_TRUE(Shows("<table class=\"book\">"));
  EXPECT_TRUE(Shows(">pump BOM</td>"));
  EXPECT_TRUE(Shows("<h3>Clipboard</h3><div class=\"clip t\">bolt</div>"));
  EXPECT_TRUE(Shows("Programs and folders opened"));
  EXPECT_TRUE(Shows("<td class=\"t\">explorer</td>"));
  EXPECT_TRUE(Shows("<figcaption>QmQQGroup: <b class=\"bad\">nobody answered it</b>"));
}

// Windows itself has no other paths than its own.
TEST_F(RunReportTest, WritesPathsAsTheUsersOwnMachineDoes) {
  const std::string own = OwnPath(folder_.path / "moved" / "report.html");
  if (own.starts_with("/")) {
    EXPECT_FALSE(Shows("Z:\\")) << html_.substr(html_.find("Z:\\"), 200);
    EXPECT_FALSE(Shows("C:\\")) << html_.substr(html_.find("C:\\"), 200);
    EXPECT_EQ(WithOwnPath("notepad.exe \"Z:\\tmp\" x"), "notepad.exe \"/tmp\" x");
    EXPECT_EQ(OwnPath("Z:\\nowhere at all\\a.ini"), "/nowhere at all/a.ini");
    EXPECT_EQ(WithOwnPath("Z:\\tmp\\a: line 1; Z:\\tmp is no file\n\"Z:\\\\tmp\\\\b\""),
              "/tmp/a: line 1; /tmp is no file\n\"/tmp/b\"");
    EXPECT_EQ(WithOwnPath("\"D:\\\\t\\\\a.drw\" of D:\\t"), "\"D:\\\\t\\\\a.drw\" of D:\\t");
  }
  const std::string slash = own.starts_with("/") ? "/" : "\\";
  EXPECT_TRUE(Shows(slash + "desktop" + slash + "明细 表.xlsx</a>"));
  const std::string page = OwnPath(folder_.path) + slash + "out" + slash + "report.html";
  EXPECT_NE(output_.find("report: " + page), std::string::npos) << output_;
  EXPECT_EQ(OwnPath("a/b.ini"), "a/b.ini");
  EXPECT_EQ(WithOwnPath("http://example.org:\\x"), "http://example.org:\\x");
}

}  // namespace
}  // namespace wb
