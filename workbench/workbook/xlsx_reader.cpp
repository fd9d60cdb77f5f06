// Reads workbook files, whichever program saved them.
#include <algorithm>
#include <cstdlib>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/xml_reader.h"
#include "workbench/base/zip_archive.h"
#include "workbench/workbook/xlsx_file.h"
#include "workbench/workbook/xlsx_styles.h"

namespace wb {
namespace {

struct Relationship {
  std::string type;
  std::string part;  // full name in the archive
};

std::string GenericText(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return std::string(text.begin(), text.end());
}

// "../sheets/a.xml" as seen from a part in folder "xl"; a leading slash is the archive's root.
std::string PartName(const std::string& folder, const std::string& target) {
  if (target.starts_with('/')) return target.substr(1);
  return GenericText((PathFromUtf8(folder) / PathFromUtf8(target)).lexically_normal());
}

// "_x000D_" back to the character it stands for.
std::string WithControls(const std::string& text) {
  std::string plain;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool escaped = text.compare(i, 2, "_x") == 0 && text.size() >= i + 7 &&
                         text[i + 6] == '_' &&
                         text.find_first_not_of("0123456789abcdefABCDEF", i + 2) == i + 6;
    if (!escaped) {
      plain += text[i];
      continue;
    }
    const std::string digits = text.substr(i + 2, 4);
    const auto code = static_cast<char16_t>(std::strtoul(digits.c_str(), nullptr, 16));
    plain += FromUtf16(std::u16string(1, code));
    i += 6;
  }
  return plain;
}

// What one workbook may hold; a small file can ask for far more than memory has.
constexpr size_t kMostCells = 2'000'000;
constexpr size_t kMostText = 128u << 20;  // bytes, in all cells
constexpr size_t kMostMerges = 10'000;
constexpr size_t kMostSheets = 1'000;

struct ReadSoFar {
  size_t cells = 0;
  size_t text = 0;
  size_t merges = 0;
};

void Count(const XmlReader& xml, size_t& count, size_t added, size_t most, const char* what) {
  count += added;
  if (count <= most) return;
  xml.Fail("the workbook has more than " + std::to_string(most) + " " + what);
}

std::string RunText(XmlReader& xml) {
  std::string text;
  xml.EachChild([&] {
    if (xml.Is("r")) xml.Fail("a run of text stands inside another one");
    if (xml.Is("t")) text += xml.Text();
  });
  return text;
}

// A text made of runs, without the reading aids that stand beside some of them.
std::string RichText(XmlReader& xml) {
  std::string text;
  xml.EachChild([&] {
    if (xml.Is("t")) {
      text += xml.Text();
    } else if (xml.Is("r")) {
      text += RunText(xml);
    }
  });
  return text;
}

std::string CellTextOf(const XmlReader& xml, const std::string& raw) {
  std::string text = WithControls(raw);
  if (WideLength(text) <= kLongestCellText) return text;
  xml.Fail("a text of more than " + std::to_string(kLongestCellText) + " characters");
}

class SheetReader {
 public:
  SheetReader(XmlReader& xml, Worksheet& sheet, const std::vector<std::string>& texts,
              const std::vector<CellFormat>& formats, ReadSoFar& read)
      : xml_(xml), sheet_(sheet), texts_(texts), formats_(formats), read_(read) {}

  void Read() {
    xml_.EachChild([&] {
      if (xml_.Is("cols")) {
        xml_.EachChild([&] { ReadColumns(); });
      } else if (xml_.Is("sheetData")) {
        xml_.EachChild([&] { ReadRow(); });
      } else if (xml_.Is("mergeCells")) {
        xml_.EachChild([&] { ReadMerge(); });
      }
    });
  }

 private:
  int Whole(const char* attribute, int standard) const {
    const std::string text = xml_.Attribute(attribute);
    return text.empty() ? standard : std::atoi(text.c_str());
  }

  const CellFormat& FormatNumber(const char* attribute) const {
    static const CellFormat kStandard;
    const auto number = static_cast<size_t>(Whole(attribute, 0));
    if (number >= formats_.size()) {
      if (number == 0) return kStandard;
      xml_.Fail("there is no cell format " + std::to_string(number));
    }
    return formats_[number];
  }

  // Programs describe all columns to the sheet's end in one element; those say nothing of use.
  void ReadColumns() {
    const int first = Whole("min", 0);
    const int last = Whole("max", 0);
    if (first < 1 || last > kSheetColumns) xml_.Fail("column out of range");
    Count(xml_, columns_, 1, kSheetColumns, "descriptions of columns in a sheet");
    const CellFormat& format = FormatNumber("style");
    const std::string width = xml_.Attribute("width");
    if (last == kSheetColumns && format == CellFormat()) return;
    for (int column = first; column <= last; ++column) {
      Worksheet::Column& place = sheet_.ColumnAt(column);
      place.format = format;
      if (!width.empty()) place.width = std::atof(width.c_str());
    }
  }

  // Rows and cells may leave their place out: then they follow the one before.
  void ReadRow() {
    at_.row = Whole("r", at_.row + 1);
    at_.column = 0;
    if (at_.row < 1 || at_.row > kSheetRows) xml_.Fail("row out of range");
    xml_.EachChild([&] {
      if (xml_.Is("c")) ReadCell();
    });
  }

  void ReadCell() {
    ++at_.column;
    if (xml_.HasAttribute("r")) {
      const auto place = ParseCellAddress(xml_.Attribute("r"));
      if (!place || place->row != at_.row) xml_.Fail("\"" + xml_.Attribute("r") + "\" is no cell");
      at_ = *place;
    }
    const CellFormat format = FormatNumber("s");
    const std::string type = xml_.Attribute("t");
    CellValue value;
    xml_.EachChild([&] {
      if (xml_.Is("v")) {
        value = Value(type, xml_.Text());
      } else if (xml_.Is("is")) {
        value = CellTextOf(xml_, RichText(xml_));
      }
    });
    // A plain empty cell says nothing.
    if (std::holds_alternative<std::monostate>(value) && format == CellFormat()) return;
    CountCell(value, format);
    sheet_.SetValue(at_, std::move(value));
    sheet_.SetFormat(at_, format);
  }

  // Every cell has a copy of its texts.
  void CountCell(const CellValue& value, const CellFormat& format) {
    Count(xml_, read_.cells, 1, kMostCells, "cells");
    const auto* const text = std::get_if<std::string>(&value);
    const size_t bytes = format.number_format.size() + (text == nullptr ? 0 : text->size());
    Count(xml_, read_.text, bytes, kMostText, "bytes of text in cells");
  }

  CellValue Value(const std::string& type, const std::string& text) const {
    if (type == "s") {
      const auto number = static_cast<size_t>(std::atoll(text.c_str()));
      if (number >= texts_.size()) xml_.Fail("there is no shared text " + text);
      return texts_[number];
    }
    if (type == "b") return text == "1";
    if (type == "str" || type == "e" || type == "d") return CellTextOf(xml_, text);
    if (text.empty()) return {};  // of a formula that was never worked out
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (end == text.c_str() || *end != '\0') xml_.Fail("\"" + text + "\" is no number");
    return number;
  }

  void ReadMerge() {
    const auto area = ParseAreaAddress(xml_.Attribute("ref"));
    if (!area) xml_.Fail("\"" + xml_.Attribute("ref") + "\" is no block of cells");
    Count(xml_, read_.merges, 1, kMostMerges, "merged areas");
    sheet_.Merge(*area);
  }

  XmlReader& xml_;
  Worksheet& sheet_;
  const std::vector<std::string>& texts_;
  const std::vector<CellFormat>& formats_;
  ReadSoFar& read_;
  size_t columns_ = 0;
  CellPosition at_ = {0, 0};
};

class BookReader {
 public:
  BookReader(const ZipReader& zip, std::string file) : zip_(zip), file_(std::move(file)) {}

  Workbook Read() {
    const auto roots = Relationships("_rels/.rels", "");
    for (const auto& [id, relation] : roots) {
      if (relation.type == "officeDocument") return ReadBook(relation.part);
    }
    throw XlsxError(file_ + ": not a workbook: it has no main document");
  }

 private:
  std::string Name(const std::string& part) const { return file_ + "!" + part; }

  // By id. An archive without that list has no relationships.
  std::map<std::string, Relationship> Relationships(const std::string& part,
                                                    const std::string& folder) const {
    std::map<std::string, Relationship> relations;
    if (!zip_.Has(part)) return relations;
    const std::string document = zip_.Read(part);
    XmlReader xml(document, Name(part));
    xml.EnterRoot();
    xml.EachChild([&] {
      const std::string type = xml.Attribute("Type");
      relations[xml.Attribute("Id")] = {type.substr(type.rfind('/') + 1),
                                        PartName(folder, xml.Attribute("Target"))};
    });
    return relations;
  }

  Workbook ReadBook(const std::string& part) {
    const std::filesystem::path path = PathFromUtf8(part);
    const std::string folder = GenericText(path.parent_path());
    const auto relations =
        Relationships(PartName(folder, "_rels/" + GenericText(path.filename()) + ".rels"), folder);
    for (const auto& [id, relation] : relations) {
      if (relation.type == "sharedStrings") ReadTexts(relation.part);
      if (relation.type == "styles") {
        formats_ = ReadXlsxStyles(zip_.Read(relation.part), Name(relation.part));
      }
    }
    const std::string document = zip_.Read(part);
    XmlReader xml(document, Name(part));
    Workbook book;
    size_t active = 0;
    xml.EnterRoot();
    xml.EachChild([&] {
      if (xml.Is("bookViews")) {
        xml.EachChild(
            [&] { active = static_cast<size_t>(std::atoi(xml.Attribute("activeTab").c_str())); });
      } else if (xml.Is("sheets")) {
        xml.EachChild([&] { ReadSheet(xml, relations, book); });
      }
    });
    if (book.sheets.empty()) throw XlsxError(Name(part) + ": the workbook has no worksheet");
    book.active_sheet = std::min(active, book.sheets.size() - 1);
    return book;
  }

  void ReadTexts(const std::string& part) {
    const std::string document = zip_.Read(part);
    XmlReader xml(document, Name(part));
    xml.EnterRoot();
    xml.EachChild([&] { texts_.push_back(CellTextOf(xml, RichText(xml))); });
  }

  void ReadSheet(const XmlReader& entry, const std::map<std::string, Relationship>& relations,
                 Workbook& book) {
    const auto relation = relations.find(entry.Attribute("id"));
    if (relation == relations.end()) entry.Fail("the sheet's document is not listed");
    if (relation->second.type != "worksheet") return;  // charts
    const std::string document = zip_.Read(relation->second.part);
    XmlReader xml(document, Name(relation->second.part));
    if (book.sheets.size() == kMostSheets) {
      entry.Fail("the workbook has more than " + std::to_string(kMostSheets) + " sheets");
    }
    Worksheet& sheet = book.sheets.emplace_back();
    sheet.name = entry.Attribute("name");
    xml.EnterRoot();
    SheetReader(xml, sheet, texts_, formats_, read_).Read();
  }

  const ZipReader& zip_;
  const std::string file_;
  std::vector<std::string> texts_;
  std::vector<CellFormat> formats_;
  ReadSoFar read_;
};

}  // namespace

Workbook ReadXlsx(const std::filesystem::path& file) {
  const std::string name = PathToUtf8(file);
  auto bytes = ReadFileBytes(file);
  if (!bytes) throw XlsxError(name + ": cannot be read");
  try {
    return BookReader(ZipReader(std::move(*bytes)), name).Read();
  } catch (const ZipError& error) {
    throw XlsxError(name + ": " + error.what());
  } catch (const LineError& error) {
    throw XlsxError(error.what());
  }
}

}  // namespace wb
