// Writes and reads the table of cell formats.
#include "workbench/workbook/xlsx_styles.h"
#include "workbench/base/html_text.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "workbench/base/text.h"
#include "workbench/base/xml_reader.h"

namespace wb {
namespace {

constexpr int kTextFormatNumber = 49;
constexpr size_t kLongestFormatCode = 1024;
constexpr size_t kMostFormats = 65490;  // as the program itself takes
constexpr int kFirstOwnFormat = 164;    // smaller ones have a meaning of their own
// Those that mean the same in every country.
const std::map<int, std::string> kBuiltInFormats = {
    {0, "General"},      {1, "0"},         {2, "0.00"},
    {3, "#,##0"},        {4, "#,##0.00"},  {9, "0%"},
    {10, "0.00%"},       {11, "0.00E+00"}, {12, "# ?/?"},
    {13, "# \?\?/\?\?"}, {48, "##0.0E+0"}, {kTextFormatNumber, kTextFormat}};
// Files number the 56 colours of the palette from 8 on.
constexpr unsigned kPaletteOffset = 7;
constexpr unsigned kPaletteSize = 56;

struct AlignmentWord {
  CellAlignment alignment;
  const char* word;
};
constexpr AlignmentWord kAlignmentWords[] = {{CellAlignment::kLeft, "left"},
                                             {CellAlignment::kCenter, "center"},
                                             {CellAlignment::kRight, "right"}};

// Distinct items in order of appearance.
template <typename Item>
class Distinct {
 public:
  size_t Number(const Item& item) {
    const auto found = std::find(items_.begin(), items_.end(), item);
    if (found != items_.end()) return static_cast<size_t>(found - items_.begin());
    items_.push_back(item);
    return items_.size() - 1;
  }
  const std::vector<Item>& items() const { return items_; }

 private:
  std::vector<Item> items_;
};

std::string Hexadecimal(unsigned value) {
  char text[16];
  std::snprintf(text, sizeof(text), "FF%06X", value);
  return text;
}

std::string FillElement(const CellFill& fill) {
  if (fill.value == kThemeColor) {
    return "<fill><patternFill patternType=\"solid\"><fgColor theme=\"0\"/></patternFill></fill>";
  }
  const std::string color = fill.from_palette
                                ? "indexed=\"" + std::to_string(fill.value + kPaletteOffset) + "\""
                                : "rgb=\"" + Hexadecimal(fill.value) + "\"";
  return "<fill><patternFill patternType=\"solid\"><fgColor " + color +
         "/><bgColor indexed=\"64\"/></patternFill></fill>";
}

std::string FontElement(bool bold, double size) {
  return "<font>" + std::string(bold ? "<b/>" : "") + "<sz val=\"" + NumberText(size) +
         "\"/><name val=\"Calibri\"/><family val=\"2\"/></font>";
}

std::string Counted(const std::string& element, const std::vector<std::string>& items) {
  return "<" + element + " count=\"" + std::to_string(items.size()) + "\">" + Join("", items) +
         "</" + element + ">";
}

std::string AlignmentElement(const CellFormat& format) {
  std::string attributes = format.wrap ? " wrapText=\"1\"" : "";
  for (const AlignmentWord& row : kAlignmentWords) {
    if (row.alignment != format.alignment) continue;
    attributes += std::string(" horizontal=\"") + row.word + "\"";
  }
  return attributes.empty() ? std::string() : "<alignment" + attributes + "/>";
}

// The parts of a format table while it is read.
struct StyleParts {
  std::map<int, std::string> number_formats = kBuiltInFormats;
  std::vector<CellFormat> fonts;  // only bold and size count
  std::vector<std::optional<CellFill>> fills;
  std::vector<CellFormat> formats;
};

int Whole(const XmlReader& xml, const char* attribute) {
  return std::atoi(xml.Attribute(attribute).c_str());
}

bool IsYes(const std::string& flag) {
  return flag == "1" || flag == "true";
}

// Every format has a copy of it.
std::string FormatCode(const XmlReader& xml) {
  std::string code = xml.Attribute("formatCode");
  if (code.size() <= kLongestFormatCode) return code;
  xml.Fail("a number format of more than " + std::to_string(kLongestFormatCode) + " bytes");
}

CellFormat ReadFont(XmlReader& xml) {
  CellFormat font;
  xml.EachChild([&] {
    if (xml.Is("b")) font.bold = !xml.HasAttribute("val") || IsYes(xml.Attribute("val"));
    if (xml.Is("sz")) font.size = std::atof(xml.Attribute("val").c_str());
  });
  return font;
}

std::optional<CellFill> ReadColor(const XmlReader& xml) {
  const std::string rgb = xml.Attribute("rgb");
  if (rgb.size() >= 6) {
    const std::string digits = rgb.substr(rgb.size() - 6);
    return CellFill{false, static_cast<unsigned>(std::strtoul(digits.c_str(), nullptr, 16))};
  }
  // Depends on the book's theme, which is not read.
  if (xml.HasAttribute("theme")) return CellFill{false, kThemeColor};
  const auto index = static_cast<unsigned>(Whole(xml, "indexed"));
  if (index <= kPaletteOffset || index > kPaletteOffset + kPaletteSize) return std::nullopt;
  return CellFill{true, index - kPaletteOffset};
}

std::optional<CellFill> ReadFill(XmlReader& xml) {
  std::optional<CellFill> fill;
  xml.EachChild([&] {
    if (!xml.Is("patternFill") || xml.Attribute("patternType") != "solid") return;
    xml.EachChild([&] {
      if (xml.Is("fgColor")) fill = ReadColor(xml);
    });
  });
  return fill;
}

CellAlignment AlignmentOf(const std::string& word) {
  for (const AlignmentWord& row : kAlignmentWords) {
    if (row.word == word) return row.alignment;
  }
  return CellAlignment::kGeneral;
}

template <typename Items>
auto ItemAt(const XmlReader& xml, const Items& items, const char* attribute) {
  const auto number = static_cast<size_t>(Whole(xml, attribute));
  if (number >= items.size()) xml.Fail("there is no " + std::string(attribute) + " of that number");
  return items[number];
}

CellFormat ReadCellFormat(XmlReader& xml, const StyleParts& parts) {
  CellFormat format = ItemAt(xml, parts.fonts, "fontId");
  format.fill = ItemAt(xml, parts.fills, "fillId");
  const int number_format = Whole(xml, "numFmtId");
  const auto known = parts.number_formats.find(number_format);
  format.number_format = known != parts.number_formats.end()
                             ? known->second
                             : "built-in " + std::to_string(number_format);
  xml.EachChild([&] {
    if (!xml.Is("alignment")) return;
    format.alignment = AlignmentOf(xml.Attribute("horizontal"));
    format.wrap = IsYes(xml.Attribute("wrapText"));
  });
  return format;
}

}  // namespace

size_t XlsxStyleWriter::Number(const CellFormat& format) {
  const auto [at, fresh] = numbers_.try_emplace(format, formats_.size());
  if (fresh) formats_.push_back(format);
  return at->second;
}

std::string XlsxStyleWriter::Document() const {
  Distinct<std::string> own_formats;
  Distinct<std::pair<bool, double>> fonts;
  // The first two fills are fixed by the format.
  Distinct<std::optional<CellFill>> fills;
  std::vector<std::string> cell_formats;
  for (const CellFormat& format : formats_) {
    const bool standard = format.number_format == "General";
    const size_t number_format = standard ? 0
                                 : format.number_format == kTextFormat
                                     ? kTextFormatNumber
                                     : kFirstOwnFormat + own_formats.Number(format.number_format);
    const size_t font = fonts.Number({format.bold, format.size});
    const size_t fill = fills.Number(format.fill);
    const std::string alignment = AlignmentElement(format);
    cell_formats.push_back(
        "<xf numFmtId=\"" + std::to_string(number_format) + "\" fontId=\"" + std::to_string(font) +
        "\" fillId=\"" + std::to_string(fill == 0 ? 0 : fill + 1) +
        "\" borderId=\"0\" xfId=\"0\" applyNumberFormat=\"1\" applyFont=\"1\" applyFill=\"1\"" +
        (alignment.empty() ? "/>" : " applyAlignment=\"1\">" + alignment + "</xf>"));
  }
  std::vector<std::string> number_elements;
  for (const std::string& code : own_formats.items()) {
    number_elements.push_back("<numFmt numFmtId=\"" +
                              std::to_string(kFirstOwnFormat + number_elements.size()) +
                              "\" formatCode=\"" + EscapeHtml(code) + "\"/>");
  }
  std::vector<std::string> font_elements;
  for (const auto& [bold, size] : fonts.items()) font_elements.push_back(FontElement(bold, size));
  std::vector<std::string> fill_elements = {"<fill><patternFill patternType=\"none\"/></fill>",
                                            "<fill><patternFill patternType=\"gray125\"/></fill>"};
  for (const auto& fill : fills.items()) {
    if (fill) fill_elements.push_back(FillElement(*fill));
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
         "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">" +
         (number_elements.empty() ? std::string() : Counted("numFmts", number_elements)) +
         Counted("fonts", font_elements) + Counted("fills", fill_elements) +
         "<borders count=\"1\"><border><left/><right/><top/><bottom/><diagonal/></border></borders>"
         "<cellStyleXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\"/>"
         "</cellStyleXfs>" +
         Counted("cellXfs", cell_formats) +
         "<cellStyles count=\"1\"><cellStyle name=\"Normal\" xfId=\"0\" builtinId=\"0\"/>"
         "</cellStyles></styleSheet>";
}

std::vector<CellFormat> ReadXlsxStyles(std::string_view document, const std::string& name) {
  XmlReader xml(document, name);
  StyleParts parts;
  const auto each = [&](const std::function<void()>& visit) { xml.EachChild(visit); };
  xml.EnterRoot();
  each([&] {
    if (xml.Is("numFmts")) {
      each([&] { parts.number_formats[Whole(xml, "numFmtId")] = FormatCode(xml); });
    } else if (xml.Is("fonts")) {
      each([&] { parts.fonts.push_back(ReadFont(xml)); });
    } else if (xml.Is("fills")) {
      each([&] { parts.fills.push_back(ReadFill(xml)); });
    } else if (xml.Is("cellXfs")) {
      each([&] {
        if (parts.formats.size() == kMostFormats) {
          xml.Fail("more than " + std::to_string(kMostFormats) + " cell formats");
        }
        parts.formats.push_back(ReadCellFormat(xml, parts));
      });
    }
  });
  return parts.formats;
}

}  // namespace wb
