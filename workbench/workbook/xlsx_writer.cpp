// Writes workbook files.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>

#include "workbench/base/html_text.h"
#include "workbench/base/text.h"
#include "workbench/base/zip_archive.h"
#include "workbench/workbook/xlsx_file.h"
#include "workbench/workbook/xlsx_styles.h"

namespace wb {
namespace {

const std::string kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
const std::string kMain = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
const std::string kOfficeRelations =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
const std::string kPackage = "http://schemas.openxmlformats.org/package/2006/";
const std::string kContentType = "application/vnd.openxmlformats-officedocument.spreadsheetml.";

bool IsHexadecimal(char16_t c) {
  return c < 0x80 && std::isxdigit(c) != 0;
}

// "_x000D_" is how a file writes characters that documents cannot hold.
bool LooksEscaped(std::u16string_view text, size_t at) {
  return text.size() >= at + 7 && text[at] == u'_' && text[at + 1] == u'x' &&
         text[at + 6] == u'_' &&
         std::all_of(text.begin() + static_cast<long>(at) + 2,
                     text.begin() + static_cast<long>(at) + 6, IsHexadecimal);
}

std::string EscapedControls(std::string_view text) {
  std::u16string escaped;
  const std::u16string units = ToUtf16(text);
  for (size_t i = 0; i < units.size(); ++i) {
    const char16_t unit = units[i];
    if (LooksEscaped(units, i)) escaped += u"_x005F";
    const bool fits = unit >= 0x20 ? unit < 0xFFFE : unit == u'\t' || unit == u'\n';
    if (fits) {
      escaped += unit;
    } else {
      char form[8];
      std::snprintf(form, sizeof(form), "_x%04X_", static_cast<unsigned>(unit));
      escaped += ToUtf16(form);
    }
  }
  return FromUtf16(escaped);
}

// Every distinct text once; cells refer to it by number.
class SharedTexts {
 public:
  size_t Number(const std::string& text) {
    ++uses_;
    const auto [at, fresh] = numbers_.try_emplace(text, numbers_.size());
    if (fresh) {
      items_ += "<si><t xml:space=\"preserve\">" + EscapeHtml(EscapedControls(text)) + "</t></si>";
    }
    return at->second;
  }
  std::string Document() const {
    return kDeclaration + "<sst xmlns=\"" + kMain + "\" count=\"" + std::to_string(uses_) +
           "\" uniqueCount=\"" + std::to_string(numbers_.size()) + "\">" + items_ + "</sst>";
  }

 private:
  std::map<std::string, size_t> numbers_;
  std::string items_;
  size_t uses_ = 0;
};

class SheetWriter {
 public:
  SheetWriter(const Worksheet& sheet, SharedTexts& texts, XlsxStyleWriter& styles)
      : sheet_(sheet), texts_(texts), styles_(styles) {}

  std::string Document() {
    return kDeclaration + "<worksheet xmlns=\"" + kMain + "\"><dimension ref=\"" +
           AreaAddress(sheet_.UsedArea()) + "\"/>" + Columns() + Rows() + Merges() + "</worksheet>";
  }

 private:
  std::string Columns() {
    if (sheet_.columns().empty()) return {};
    std::string text = "<cols>";
    for (const auto& [number, column] : sheet_.columns()) {
      const std::string place = std::to_string(number);
      text += "<col min=\"" + place + "\" max=\"" + place + "\" width=\"" +
              NumberText(column.width.value_or(kStandardWidth)) + "\"" +
              (column.width ? " customWidth=\"1\"" : "") + Style("style", column.format) + "/>";
    }
    return text + "</cols>";
  }

  std::string Rows() {
    std::string text = "<sheetData>";
    int row = 0;
    for (const auto& [position, cell] : sheet_.cells()) {
      if (position.row != row) {
        if (row != 0) text += "</row>";
        row = position.row;
        text += "<row r=\"" + std::to_string(row) + "\"" + Height(row) + ">";
      }
      text +=
          "<c r=\"" + CellAddress(position) + "\"" + Style("s", cell.format) + Value(cell.value);
    }
    return text + (row == 0 ? "" : "</row>") + "</sheetData>";
  }

  std::string Height(int row) const {
    const auto found = sheet_.row_heights().find(row);
    if (found == sheet_.row_heights().end()) return {};
    return " ht=\"" + NumberText(found->second) + "\" customHeight=\"1\"";
  }

  std::string Style(const std::string& attribute, const CellFormat& format) {
    const size_t number = styles_.Number(format);
    return number == 0 ? "" : " " + attribute + "=\"" + std::to_string(number) + "\"";
  }

  // The rest of a cell's element.
  std::string Value(const CellValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
      return " t=\"s\"><v>" + std::to_string(texts_.Number(*text)) + "</v></c>";
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
      return *flag ? " t=\"b\"><v>1</v></c>" : " t=\"b\"><v>0</v></c>";
    }
    if (const auto* number = std::get_if<double>(&value)) {
      return "><v>" + NumberText(*number) + "</v></c>";
    }
    return "/>";
  }

  std::string Merges() const {
    if (sheet_.merges().empty()) return {};
    std::string text = "<mergeCells count=\"" + std::to_string(sheet_.merges().size()) + "\">";
    for (const CellArea& area : sheet_.merges()) {
      text += "<mergeCell ref=\"" + AreaAddress(area) + "\"/>";
    }
    return text + "</mergeCells>";
  }

  static constexpr double kStandardWidth = 9.140625;

  const Worksheet& sheet_;
  SharedTexts& texts_;
  XlsxStyleWriter& styles_;
};

std::string SheetPart(size_t number) {
  return "worksheets/sheet" + std::to_string(number) + ".xml";
}

std::string Override(const std::string& part, const std::string& type) {
  return "<Override PartName=\"/xl/" + part + "\" ContentType=\"" + kContentType + type +
         "+xml\"/>";
}

std::string ContentTypes(size_t sheets) {
  std::string text = kDeclaration + "<Types xmlns=\"" + kPackage +
                     "content-types\"><Default Extension=\"rels\" ContentType=\"application/"
                     "vnd.openxmlformats-package.relationships+xml\"/><Default Extension=\"xml\" "
                     "ContentType=\"application/xml\"/>" +
                     Override("workbook.xml", "sheet.main") + Override("styles.xml", "styles") +
                     Override("sharedStrings.xml", "sharedStrings");
  for (size_t i = 1; i <= sheets; ++i) text += Override(SheetPart(i), "worksheet");
  return text + "</Types>";
}

std::string Relation(size_t id, const std::string& type, const std::string& target) {
  return "<Relationship Id=\"rId" + std::to_string(id) + "\" Type=\"" + kOfficeRelations + "/" +
         type + "\" Target=\"" + target + "\"/>";
}

std::string Relations(const std::string& items) {
  return kDeclaration + "<Relationships xmlns=\"" + kPackage + "relationships\">" + items +
         "</Relationships>";
}

std::string WorkbookRelations(size_t sheets) {
  std::string items;
  for (size_t i = 1; i <= sheets; ++i) items += Relation(i, "worksheet", SheetPart(i));
  items += Relation(sheets + 1, "styles", "styles.xml");
  return Relations(items + Relation(sheets + 2, "sharedStrings", "sharedStrings.xml"));
}

std::string WorkbookDocument(const Workbook& book) {
  std::string text = kDeclaration + "<workbook xmlns=\"" + kMain + "\" xmlns:r=\"" +
                     kOfficeRelations + "\"><bookViews><workbookView activeTab=\"" +
                     std::to_string(book.active_sheet) + "\"/></bookViews><sheets>";
  for (size_t i = 0; i < book.sheets.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    text += "<sheet name=\"" + EscapeHtml(book.sheets[i].name) + "\" sheetId=\"" + number +
            "\" r:id=\"rId" + number + "\"/>";
  }
  return text + "</sheets></workbook>";
}

}  // namespace

std::string XlsxBytes(const Workbook& book) {
  const size_t sheets = book.sheets.size();
  SharedTexts texts;
  XlsxStyleWriter styles;
  ZipWriter zip;
  zip.Add("[Content_Types].xml", ContentTypes(sheets));
  zip.Add("_rels/.rels", Relations(Relation(1, "officeDocument", "xl/workbook.xml")));
  zip.Add("xl/workbook.xml", WorkbookDocument(book));
  zip.Add("xl/_rels/workbook.xml.rels", WorkbookRelations(sheets));
  for (size_t i = 0; i < sheets; ++i) {
    zip.Add("xl/" + SheetPart(i + 1), SheetWriter(book.sheets[i], texts, styles).Document());
  }
  zip.Add("xl/styles.xml", styles.Document());
  zip.Add("xl/sharedStrings.xml", texts.Document());
  return zip.Finish();
}

void WriteXlsx(const Workbook& book, const std::filesystem::path& file) {
  const std::string bytes = XlsxBytes(book);
  // What lies there already is somebody's.
  std::filesystem::path neighbour = file;
  do {
    neighbour += ".part";
  } while (std::filesystem::exists(neighbour));
  std::error_code error;
  std::ofstream out(neighbour, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  const bool written = !out.fail();
  if (written) std::filesystem::rename(neighbour, file, error);
  if (written && !error) return;
  std::error_code ignored;
  std::filesystem::remove(neighbour, ignored);
  throw XlsxError(PathToUtf8(file) + ": cannot be written" +
                  (error ? ": " + error.message() : std::string()));
}

}  // namespace wb
