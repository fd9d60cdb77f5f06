// Workbook files: written and read back, read from other programs, damaged.
#include "workbench/workbook/xlsx_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/source_folder.h"
#include "tests/workbench/error_from.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/zip_archive.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class XlsxFile : public testing::Test {
 protected:
  fs::path Write(const std::string& bytes) const {
    const fs::path file = folder_ / "book.xlsx";
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }
  // What reading `bytes` complains of; empty when it does not.
  std::string ErrorOf(const std::string& bytes) const {
    return ErrorFrom([&] { ReadXlsx(Write(bytes)); });
  }

  const TemporaryFolder temporary_{"workbench xlsx test"};
  const fs::path& folder_ = temporary_.path;
};

constexpr const char* kRoots =
    "<Relationships><Relationship Id=\"r\" Type=\"a/officeDocument\" Target=\"xl/b.xml\"/>"
    "</Relationships>";
constexpr const char* kBook =
    "<x:workbook><x:sheets><x:sheet name=\"S\" r:id=\"r1\"/></x:sheets></x:workbook>";
constexpr const char* kBookRelations =
    "<Relationships><Relationship Id=\"r1\" Type=\"a/worksheet\" Target=\"/xl/s.xml\"/>"
    "<Relationship Id=\"r2\" Type=\"a/sharedStrings\" Target=\"../xl/t.xml\"/></Relationships>";
constexpr const char* kTexts =
    "<sst><si><t>plain</t></si><si><r><t>rich </t></r><r><rPr><b/></rPr><t>text</t></r>"
    "<rPh><t>hidden</t></rPh></si></sst>";

std::string Archive(const std::string& sheet, const std::string& texts = kTexts) {
  ZipWriter zip;
  zip.Add("_rels/.rels", kRoots);
  zip.Add("xl/b.xml", kBook);
  zip.Add("xl/_rels/b.xml.rels", kBookRelations);
  zip.Add("xl/s.xml", sheet);
  zip.Add("xl/t.xml", texts);
  return zip.Finish();
}

TEST_F(XlsxFile, WhatIsWrittenIsReadBack) {
  Workbook book = NewWorkbook();
  book.sheets.emplace_back().name = "第二 & 3";
  book.active_sheet = 1;
  Worksheet& sheet = book.sheets[0];
  const CellValue kValues[] = {"plain",
                               "a & <b> \"c\" 'd'",
                               " blanks ",
                               "two\nlines\r and\ttab",
                               "_x000D_ as typed",
                               "材料\x01",
                               "no character \xEF\xBF\xBF, _x00e9_ as typed",
                               "",
                               -1.25e-7,
                               12345678901234567890.0,
                               true};
  int row = 1;
  for (const CellValue& value : kValues) sheet.SetValue({row++, 2}, value);
  CellFormat format;
  format.number_format = "@";
  format.bold = true;
  format.size = 16;
  format.fill = CellFill{false, 0xFFFF00};
  format.alignment = CellAlignment::kCenter;
  sheet.SetFormat({1, 2}, format);
  format.fill = CellFill{true, 35};
  format.number_format = "0.000 \"kg\"";
  format.wrap = true;
  sheet.SetFormat({2, 2}, format);
  sheet.Merge({{20, 1}, {20, 3}});
  sheet.ColumnAt(2).width = 17.5;
  WriteXlsx(book, folder_ / "book.xlsx");

  const Workbook read = ReadXlsx(folder_ / "book.xlsx");
  ASSERT_EQ(read.sheets.size(), 2u);
  EXPECT_EQ(read.sheets[1].name, "第二 & 3");
  EXPECT_EQ(read.active_sheet, 1u);
  row = 1;
  for (const CellValue& value : kValues) EXPECT_EQ(read.sheets[0].ValueAt({row++, 2}), value);
  EXPECT_EQ(read.sheets[0].FormatAt({1, 2}), sheet.FormatAt({1, 2}));
  EXPECT_EQ(read.sheets[0].FormatAt({2, 2}), sheet.FormatAt({2, 2}));
  EXPECT_TRUE(read.sheets[0].IsMerged({{20, 1}, {20, 3}}));
  EXPECT_EQ(read.sheets[0].WidthOf(2), 17.5);
}

TEST_F(XlsxFile, AFileSavedByAnotherProgramIsRead) {
  const Workbook book = ReadXlsx(SourceFolder() / "tests" / "workbench" / "workbook" / "data" /
                                 "saved_by_another_program.xlsx");
  const Worksheet& sheet = book.sheets.at(0);
  EXPECT_EQ(sheet.ValueAt({1, 1}), CellValue("泵 BOM"));
  EXPECT_EQ(sheet.ValueAt({4, 2}), CellValue("0007"));
  EXPECT_EQ(sheet.ValueAt({4, 4}), CellValue("12345678901234567890"));
  EXPECT_EQ(sheet.ValueAt({5, 2}), CellValue("@x\nline2"));
  EXPECT_EQ(sheet.ValueAt({7, 2}), CellValue(7.0));
  EXPECT_EQ(sheet.ValueAt({7, 3}), CellValue(true));
  EXPECT_TRUE(sheet.IsMerged({{1, 1}, {1, 4}}));
  const CellFormat title = sheet.FormatAt({1, 1});
  EXPECT_TRUE(title.bold && title.size == 16 && title.fill == CellFill({false, 0xFFFF00}));
  EXPECT_EQ(sheet.FormatAt({3, 1}).number_format, "@");
  EXPECT_EQ(sheet.FormatAt({2, 1}).alignment, CellAlignment::kCenter);
}

TEST_F(XlsxFile, AllWaysOfWritingACellAreRead) {
  const std::string sheet =
      "<?xml version=\"1.0\"?><!-- a note --><x:worksheet xmlns:x='m'><x:sheetData>"
      "<x:row><x:c t='s'><x:v>0</x:v></x:c><x:c t='s'><x:v>1</x:v></x:c></x:row>"
      "<x:row r='5'><x:c r='C5' t='inlineStr'><x:is><x:t>in &#x6750;&#26009;</x:t></x:is></x:c>"
      "<x:c><x:v>1.5E2</x:v></x:c><x:c t='b'><x:v>0</x:v></x:c>"
      "<x:c t='str'><x:f>A1&amp;B1</x:f><x:v>a_x000D_b</x:v></x:c>"
      "<x:c t='e'><x:v>#N/A</x:v></x:c><x:c/><x:c><x:f>1+2</x:f><x:v></x:v></x:c></x:row>"
      "<x:row><x:c t='inlineStr'><x:is><x:t><![CDATA[<raw>]]></x:t></x:is></x:c></x:row>"
      "</x:sheetData></x:worksheet>";
  const Workbook book = ReadXlsx(Write(Archive(sheet)));
  const Worksheet& read = book.sheets.at(0);
  const struct {
    const char* cell;
    CellValue value;
  } kCells[] = {{"A1", "plain"}, {"B1", "rich text"}, {"C5", "in 材料"}, {"D5", 150.0},
                {"E5", false},   {"F5", "a\rb"},      {"G5", "#N/A"},    {"A6", "<raw>"}};
  for (const auto& row : kCells) {
    EXPECT_EQ(read.ValueAt(*ParseCellAddress(row.cell)), row.value) << row.cell;
  }
  EXPECT_EQ(read.UsedArea(), *ParseAreaAddress("A1:G6"));
}

TEST_F(XlsxFile, WhatIsWrongIsToldWithItsPlace) {
  const auto sheet = [](const std::string& cell) {
    return Archive("<worksheet>\n<sheetData><row r=\"1\">" + cell +
                   "</row></sheetData></worksheet>");
  };
  const struct {
    std::string bytes;
    const char* complaint;
  } kCases[] = {
      {"no archive", "book.xlsx: not a ZIP archive"},
      {sheet("<c r=\"B2\"/>"), "book.xlsx!xl/s.xml:2: \"B2\" is no cell"},
      {sheet("<c t=\"s\"><v>2</v></c>"), "book.xlsx!xl/s.xml:2: there is no shared text 2"},
      {sheet("<c s=\"3\"/>"), "there is no cell format 3"},
      {sheet("<c></d>"), "\"d\" ends where another element is open"},
      {sheet("<c><v>&no;</v></c>"), "unknown reference \"&no;\""},
      {Archive("<worksheet><sheetData>"), "the document ends inside an element"},
      {Archive("\xff\xfe<"), "not UTF-8"},
      {sheet("<c t=\"str\"><v>\x01</v></c>"), "s.xml:2: a character that no document may hold"},
      {Archive("<!DOCTYPE a []><worksheet/>"), "document types are not taken"},
  };
  for (const auto& row : kCases) {
    const std::string error = ErrorOf(row.bytes);
    EXPECT_NE(error.find(row.complaint), std::string::npos) << row.complaint << "\n" << error;
  }
  EXPECT_THROW(ReadXlsx(folder_ / "missing.xlsx"), XlsxError);
}

std::string Repeated(const std::string& text, size_t times) {
  std::string repeated;
  for (size_t i = 0; i < times; ++i) repeated += text;
  return repeated;
}

// The archive's directory says of its first entry that it is a gigabyte.
std::string SaidToBeHuge(std::string archive) {
  const size_t directory = archive.find("PK\x01\x02");
  archive.replace(directory + 24, 4, std::string("\0\0\0\x40", 4));
  return archive;
}

// Each of them is small as a file and would take the memory, the stack or the time of a reader
// that believes it.
TEST_F(XlsxFile, WhatIsMadeToHurtIsRefusedWithItsReason) {
  const auto sheet = [](const std::string& rows, const std::string& texts = kTexts) {
    return Archive("<worksheet><sheetData><row>" + rows + "</row></sheetData></worksheet>", texts);
  };
  const std::string runs = Repeated("<r>", 200'000);
  const std::string long_text(32'767, 'x');
  const struct {
    std::string bytes;
    const char* complaint;
  } kCases[] = {
      {Archive("<worksheet/>", "<sst><si>" + runs),
       "book.xlsx!xl/t.xml:1: a run of text stands inside another one"},
      {Archive("<worksheet>" + Repeated("<a>", 1000)), "elements are nested more than 256 deep"},
      {Archive("<worksheet " + Repeated("a='' ", 1000)), "more than 256 attributes"},
      {SaidToBeHuge(Archive("<worksheet/>")),
       "book.xlsx: _rels/.rels: said to unpack to 1073741824 bytes, which "},
      {Archive("<worksheet>" + std::string(40'000'000, ' ')), " bytes unpacks to more than "},
      {sheet("", "<sst><si><t>" + long_text + "x</t></si></sst>"),
       "xl/t.xml:1: a text of more than 32767 characters"},
      {sheet(Repeated("<c t='s'><v>0</v></c>", 5000),
             "<sst><si><t>" + long_text + "</t></si></sst>"),
       "xl/s.xml:1: the workbook has more than 134217728 bytes of text in cells"},
      {Archive("<worksheet><cols>" + Repeated("<col min='1' max='2'/>", 17'000)),
       "more than 16384 descriptions of columns in a sheet"},
      {Archive("<worksheet><mergeCells>" + Repeated("<mergeCell ref='A1'/>", 10'001)),
       "more than 10000 merged areas"},
  };
  for (const auto& row : kCases) {
    EXPECT_LT(row.bytes.size(), 100'000u) << row.complaint;
    const std::string error = ErrorOf(row.bytes);
    EXPECT_NE(error.find(row.complaint), std::string::npos) << row.complaint << "\n"
                                                            << error.substr(0, 300);
  }
}

TEST_F(XlsxFile, AFileOfTheUsersBesideTheTargetStays) {
  std::ofstream(folder_ / "book.xlsx.part") << "mine";
  WriteXlsx(NewWorkbook(), folder_ / "book.xlsx");
  EXPECT_EQ(fs::file_size(folder_ / "book.xlsx.part"), 4u);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 2);
}

TEST_F(XlsxFile, AFileThatCannotBeWrittenLeavesNothing) {
  const fs::path file = folder_ / "missing" / "book.xlsx";
  EXPECT_THROW(WriteXlsx(NewWorkbook(), file), XlsxError);
  EXPECT_FALSE(fs::exists(file.parent_path()));
  // A folder of the target's name is in the way.
  fs::create_directories(folder_ / "taken.xlsx" / "inside");
  EXPECT_THROW(WriteXlsx(NewWorkbook(), folder_ / "taken.xlsx"), XlsxError);
  EXPECT_FALSE(fs::exists(folder_ / "taken.xlsx.part"));
}

}  // namespace
}  // namespace wb
