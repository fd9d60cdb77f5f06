// Draws message boxes and drawing sheets for the report.
#include "workbench/report/report_shown.h"

#include <algorithm>
#include <cstdio>

#include "workbench/base/html_text.h"
#include "workbench/base/text.h"
#include "workbench/report/report_text.h"

namespace wb {
namespace {

// Windows' numbers: the low digit of a box's style says which buttons it has, the next its icon.
constexpr unsigned kButtonsMask = 0xF;
constexpr unsigned kIconMask = 0xF0;

struct Button {
  int id;
  const char* label;
};
constexpr Button kOk = {1, "OK"}, kCancel = {2, "Cancel"}, kAbort = {3, "Abort"},
                 kRetry = {4, "Retry"}, kIgnore = {5, "Ignore"}, kYes = {6, "Yes"}, kNo = {7, "No"};

std::vector<Button> ButtonsOf(unsigned style) {
  switch (style & kButtonsMask) {
    case 1:
      return {kOk, kCancel};
    case 2:
      return {kAbort, kRetry, kIgnore};
    case 3:
      return {kYes, kNo, kCancel};
    case 4:
      return {kYes, kNo};
    case 5:
      return {kRetry, kCancel};
    default:
      return {kOk};
  }
}

const char* IconOf(unsigned style) {
  switch (style & kIconMask) {
    case 0x10:
      return "<i class=\"error\">×</i>";
    case 0x20:
      return "<i>?</i>";
    case 0x30:
      return "<i class=\"warning\">!</i>";
    case 0x40:
      return "<i>i</i>";
    default:
      return "";
  }
}

struct SheetSize {
  const char* name;
  double width;  // millimetres, landscape
  double height;
};
constexpr SheetSize kSheetSizes[] = {
    {"A0", 1189, 841},   {"A1", 841, 594},     {"A2", 594, 420},     {"A3", 420, 297},
    {"A4", 297, 210},    {"A", 279.4, 215.9},  {"B", 431.8, 279.4},  {"C", 558.8, 431.8},
    {"D", 863.6, 558.8}, {"E", 1117.6, 863.6}, {"F", 1016.0, 711.2},
};
constexpr SheetSize kUnknownSize = {"", 297, 210};

const SheetSize& SizeNamed(const std::string& name) {
  const auto found =
      std::find_if(std::begin(kSheetSizes), std::end(kSheetSizes),
                   [&](const SheetSize& size) { return EqualFolded(size.name, name); });
  return found == std::end(kSheetSizes) ? kUnknownSize : *found;
}

// Pixels of a length on paper: an A4 sheet stays legible, an A0 sheet fits the page.
int Pixels(double millimetres) {
  return static_cast<int>(90 + millimetres * 0.3);
}

std::string ScaleText(double scale) {
  if (!(scale > 0)) return NumberText(scale);
  char text[32];
  std::snprintf(text, sizeof text, "%.4g", scale < 1 ? 1 / scale : scale);
  return scale < 1 ? std::string("1:") + text : std::string(text) + ":1";
}

std::string SheetSvg(const SheetPicture& sheet) {
  const SheetSize& size = SizeNamed(sheet.size);
  const int width = Pixels(size.width);
  const int height = width * static_cast<int>(size.height) / static_cast<int>(size.width);
  const auto number = [](int value) { return std::to_string(value); };
  std::string svg = "<svg class=\"sheet-box\" width=\"" + number(width) + "\" height=\"" +
                    number(height) + "\"><g fill=\"#fff\" stroke=\"#48586a\">";
  const auto frame = [&](int x, int y, int w, int h) {
    svg += "<rect x=\"" + number(x) + ".5\" y=\"" + number(y) + ".5\" width=\"" + number(w) +
           "\" height=\"" + number(h) + "\"/>";
  };
  frame(0, 0, width - 1, height - 1);
  frame(10, 5, width - 16, height - 11);
  frame(width - 76, height - 26, 70, 20);  // title block
  svg += "</g><text x=\"" + number(width - 70) + "\" y=\"" + number(height - 11) + "\">" +
         EscapeHtml(sheet.size) + "  " + ScaleText(sheet.scale) + "</text>";
  return svg + "</svg>";
}

}  // namespace

std::string DrawMessageBox(const MessageBox& box, int pressed) {
  std::string html =
      "<div class=\"box\"><div class=\"box-caption\"><span class=\"t\">" + ShownText(box.caption) +
      "</span><span>×</span></div><div class=\"box-body\">" + IconOf(box.style) +
      "<div class=\"t\">" + ShownText(box.text) + "</div></div><div class=\"box-buttons\">";
  for (const Button& button : ButtonsOf(box.style)) {
    html += button.id == pressed ? "<span class=\"pressed\">" : "<span>";
    html += std::string(button.label) + "</span>";
  }
  return html + "</div></div>";
}

std::string DrawSheets(const DrawingPicture& drawing) {
  std::string html;
  for (std::size_t i = 0; i < drawing.sheets.size(); ++i) {
    html += "<figure><figcaption>" + EscapeHtml(drawing.name) + ", sheet " + std::to_string(i + 1);
    if (!drawing.shows.empty()) html += ", of " + EscapeHtml(drawing.shows);
    html += "</figcaption>" + SheetSvg(drawing.sheets[i]) + "</figure>";
  }
  return html;
}

}  // namespace wb
