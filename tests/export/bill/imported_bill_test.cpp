// The whole way of a bill: a STEP file, its import, the dialog, the workbook. Random assemblies are
// counted here a second time, by plain recursion.
#include <algorithm>
#include <array>
#include <fstream>
#include <random>

#include "tests/plugin_host.h"
#include "tests/workbench/step/step_text_builder.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/script/script_windows.h"
#include "workbench/spreadsheet/spreadsheet_server.h"
#include "workbench/step/import.h"
#include "workbench/workbook/xlsx_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

// Node 0 is the top; the children of a node have higher numbers. A node without any is a part.
using Tree = std::vector<std::vector<int>>;

Tree RandomTree(unsigned seed) {
  std::mt19937 random(seed);
  const int nodes = 5 + static_cast<int>(random() % 30);
  Tree tree(static_cast<size_t>(nodes));
  for (int node = 0; node + 1 < nodes; ++node) {
    const auto others = static_cast<unsigned>(nodes - node - 1);
    // Half of them, or they would all be assemblies.
    const unsigned children = node > 0 && random() % 2 == 0 ? 0 : random() % 6;
    for (unsigned i = 0; i < children; ++i) {
      tree[static_cast<size_t>(node)].push_back(node + 1 + static_cast<int>(random() % others));
    }
  }
  tree[0].insert(tree[0].end(), {1, nodes - 1, 1});
  return tree;
}

std::string NameOf(int node) {
  return node == 0 ? "top" : "n" + std::to_string(node);
}

std::string StepText(const Tree& tree) {
  StepTextBuilder step;
  const int context = step.Metric(".MILLI.");
  std::vector<StepTextBuilder::Part> products;
  for (size_t node = 0; node < tree.size(); ++node) {
    products.push_back(
        step.Product(NameOf(static_cast<int>(node)), {step.Axis("0.,0.,0.")}, context));
  }
  for (size_t node = 0; node < tree.size(); ++node) {
    for (const int child : tree[node]) {
      step.Usage(products[node], products[static_cast<size_t>(child)]);
    }
  }
  return step.Text();
}

// A row of a workbook: the texts of its cells, and whether they are tinted.
struct SheetRow {
  Lines texts;
  bool tinted = false;
  bool operator==(const SheetRow&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const SheetRow& row) {
    for (const std::string& text : row.texts) out << text << '|';
    return out << (row.tinted ? " tinted" : "");
  }
};

class Recount {
 public:
  explicit Recount(const Tree& tree) : tree_(tree) {}

  std::vector<SheetRow> Summary() {
    Count(0);
    std::vector<SheetRow> rows;
    for (const auto& [node, total] : totals_) {
      rows.push_back({{Next(rows), NameOf(node), std::to_string(total)}, IsAssembly(node)});
    }
    return rows;
  }
  std::vector<SheetRow> Levels(int depth) {
    std::vector<SheetRow> rows;
    List(0, "", 1, depth, rows);
    return rows;
  }

 private:
  static std::string Next(const std::vector<SheetRow>& rows) {
    return std::to_string(rows.size() + 1);
  }
  bool IsAssembly(int node) const { return !tree_[static_cast<size_t>(node)].empty(); }
  void Count(int node) {
    for (const int child : tree_[static_cast<size_t>(node)]) {
      const auto known = std::ranges::find(totals_, child, &std::pair<int, int>::first);
      if (known == totals_.end()) {
        totals_.emplace_back(child, 1);
      } else {
        ++known->second;
      }
      Count(child);
    }
  }
  void List(int node, const std::string& number, int level, int depth,
            std::vector<SheetRow>& rows) const {
    if (level > depth) return;
    const std::vector<int>& children = tree_[static_cast<size_t>(node)];
    int place = 0;
    for (size_t i = 0; i < children.size(); ++i) {
      const int child = children[i];
      if (std::count(children.begin(), children.begin() + static_cast<int>(i), child) > 0) continue;
      const std::string own = number + (number.empty() ? "" : ".") + std::to_string(++place);
      rows.push_back({{Next(rows), own, std::to_string(level), NameOf(child),
                       std::to_string(std::ranges::count(children, child))},
                      IsAssembly(child)});
      List(child, own, level + 1, depth, rows);
    }
  }

  const Tree& tree_;
  std::vector<std::pair<int, int>> totals_;  // in the order of first appearance
};

// Exports the summary, the first two levels and all levels.
class BillExporter : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    Export(dialog);
    EXPECT_TRUE(dialog.state.UserSelect("BomRadio", {"LevelBom"}).Done());
    EXPECT_TRUE(dialog.Fire("BomRadio", kSelectEvent));
    for (const char* depth : {"2", "99"}) {
      EXPECT_TRUE(dialog.state.UserSelect("LevelOption", {depth}).Done());
      Press(dialog, "QmLoadBom");
      Export(dialog);
    }
    Press(dialog, "Close");
  }
  std::optional<std::string> ChooseFile(const FileRequest&) override {
    return PathToUtf8(files[exported]);
  }
  int AnswerMessageBox(const MessageBox& box) override {
    ADD_FAILURE() << box.text;
    return IDOK;
  }

  std::array<fs::path, 3> files;
  size_t exported = 0;

 private:
  static void Press(LiveDialog& dialog, const char* button) {
    EXPECT_TRUE(dialog.state.UserPress(button).Done()) << button;
    EXPECT_TRUE(dialog.Fire(button, kActivateEvent)) << button;
  }
  void Export(LiveDialog& dialog) {
    Press(dialog, "QmExportBom");
    ++exported;
  }
};

class ImportedBill : public PluginHost {
 protected:
  ImportedBill() {
    host_.session.ChangeDirectory(folder_);
    SetColumns(L"tableCols_sum", L"模型名称,模型数量");
    SetColumns(L"tableCols_level", L"层级1,层级2,模型名称,模型数量");
    for (size_t i = 0; i < exporter_.files.size(); ++i) {
      exporter_.files[i] = folder_ / (std::to_string(i) + ".xlsx");
    }
    host_.user = &exporter_;
    EXPECT_EQ(plugin_.Start(), 0);
  }
  // Other tests of this process use the same settings.
  ~ImportedBill() override {
    host_.user = &user_;
    FlushProfile(settings_);
    std::ofstream(settings_, std::ios::binary | std::ios::trunc) << settings_before_;
  }

  void SetColumns(const wchar_t* section, const wchar_t* columns) const {
    ASSERT_TRUE(::WritePrivateProfileStringW(section, L"content", columns, settings_.c_str()));
  }
  void Open(const Tree& tree) {
    const fs::path step = folder_ / "top.stp";
    std::ofstream(step, std::ios::binary) << StepText(tree);
    WriteModels(ReadStepModels(step), folder_, true);
    Model* const top = host_.session.Retrieve({"top", ModelKind::kAssembly});
    ASSERT_NE(top, nullptr);
    host_.session.ActivateWindow(host_.session.ShowInWindow(*top).id);
  }
  void EraseAll() {
    while (!host_.session.models().empty()) host_.session.Erase(*host_.session.models().front());
  }
  static std::vector<SheetRow> RowsOf(const fs::path& file, int columns) {
    const Workbook book = ReadXlsx(file);
    const Worksheet& sheet = book.sheets.front();
    EXPECT_EQ(CellText(sheet.ValueAt({1, 1})), "top BOM");
    std::vector<SheetRow> rows;
    for (int row = 3; sheet.Find({row, 1}) != nullptr; ++row) {
      SheetRow& read = rows.emplace_back();
      for (int column = 1; column <= columns; ++column) {
        read.texts.push_back(CellText(sheet.ValueAt({row, column})));
      }
      read.tinted = sheet.FormatAt({row, columns}).fill.has_value();
    }
    return rows;
  }

  const fs::path settings_ = Installed().tree() / "QMconfig" / "QmBom.ini";
  const std::string settings_before_ = ReadFileBytes(settings_).value_or("");
  const TemporaryFolder temporary_{"workbench imported bill"};
  const fs::path& folder_ = temporary_.path;
  BillExporter exporter_;
  SpreadsheetServer spreadsheet_{host_};
  Plugin plugin_{Installed().dll()};
};

TEST_F(ImportedBill, AgreesWithACountOfItsOwn) {
  size_t rows = 0;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    const Tree tree = RandomTree(seed);
    ASSERT_NO_FATAL_FAILURE(Open(tree));
    exporter_.exported = 0;
    EXPECT_EQ(RunCommand("QmBom").status, 0);
    const std::vector<SheetRow> wanted[] = {Recount(tree).Summary(), Recount(tree).Levels(2),
                                            Recount(tree).Levels(99)};
    ASSERT_EQ(exporter_.exported, std::size(wanted));
    for (size_t i = 0; i < std::size(wanted); ++i) {
      const int columns = i == 0 ? 3 : 5;
      EXPECT_EQ(RowsOf(exporter_.files[i], columns), wanted[i]) << i;
      rows += wanted[i].size();
    }
    EraseAll();
  }
  EXPECT_GT(rows, 500u);
  EXPECT_EQ(TakeBreaches(), Lines());
}

}  // namespace
}  // namespace wb
