// Draws sheets as a design office does: thick lines for what is seen, thin ones for the rest, black
// on white whatever the colours of the page around them.
#include "workbench/sheet/sheet_svg.h"

#include <algorithm>
#include <cmath>

#include "workbench/base/html_text.h"
#include "workbench/sheet/sheet_text.h"

namespace wb {
namespace {

constexpr SheetSize kUnknownSize = {"", 297, 210};
// Of the frame from the paper's edge; the left one is for binding.
constexpr double kBindingEdge = 25;
constexpr double kWideEdge = 10;
constexpr double kNarrowEdge = 5;
constexpr double kNarrowFrom = 420;  // sheets up to this width have narrow edges
constexpr double kCentringMark = 5;  // into the frame
constexpr double kDesk = 4;          // seen around the paper
// Beyond this a thing is not on the desk, and the sheet would be a dot.
constexpr double kFurthest = 1e6;

// In pixels of the picture: a small sheet stays legible, a large one fits the page.
constexpr double kFewestPixels = 200;
constexpr double kPixelsPerUnit = 1.6;
constexpr double kMostPixels = 1100;
// Lines and letters in millimetres, and the least of them in pixels.
constexpr double kThick = 0.5, kThickPixels = 1.5;
constexpr double kThin = 0.18, kThinPixels = 0.7;
constexpr double kHaloPixels = 7;
constexpr double kLetters = 5, kLetterPixels = 11;
constexpr double kLineStep = 1.4;    // from line to line, in letters
constexpr double kNarrowest = 0.58;  // width of a Latin letter, in letters
constexpr double kCellFill = 0.6;    // of a cell's height, for its letters
constexpr double kLimitLetters = 0.66;

constexpr const char* kInk = "#14181d";
constexpr const char* kBlack = "#000";
constexpr const char* kFonts =
    "'Segoe UI','Microsoft YaHei','PingFang SC','Noto Sans CJK SC','Source Han Sans SC',SimSun,"
    "'Segoe UI Symbol','DejaVu Sans',sans-serif";

// What distinguishes texts and hidden edges on a page.
std::string PageStyle(PageInk ink, bool stroked) {
  constexpr const char* kStyles[] = {
      ".dimension{fill:#1246a8}.note{fill:#0a6b2d}.hidden{stroke:#9a5b00}",
      ".dimension,.note{fill:#555}.hidden{stroke:#777}", ""};
  const std::string letters = "text{fill:none;stroke:#000;stroke-width:.25}";
  return kStyles[static_cast<std::size_t>(ink)] + (stroked ? letters : "");
}

const char* HaloOf(SheetMark mark) {
  switch (mark) {
    case SheetMark::kChanged:
      return "#ffd24a";
    case SheetMark::kAdded:
      return "#8fdcab";
    case SheetMark::kRemoved:
      return "#f5a59c";
    case SheetMark::kSame:
      break;
  }
  return nullptr;
}

const char* WordOf(SheetMark mark) {
  constexpr const char* kWords[] = {"", "changed", "added", "removed"};
  return kWords[static_cast<std::size_t>(mark)];
}

bool IsNear(const Outline& area) {
  return std::ranges::all_of(area, [](double at) { return std::abs(at) < kFurthest; });
}

// Of a text in letters: Chinese ones are as wide as high.
double WidthOf(const std::string& text) {
  double width = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) width += kNarrowest;
    if (byte >= 0xC0) width += byte >= 0xE0 ? 1 : kNarrowest;
  }
  return width;
}

double WidthOf(const TextLine& line) {
  const double limits = kLimitLetters * std::max(WidthOf(line.upper), WidthOf(line.lower));
  return WidthOf(line.text) + limits + WidthOf(line.rest);
}

double Sum(const std::vector<double>& lengths) {
  double sum = 0;
  for (const double length : lengths) sum += length;
  return sum;
}

Outline AreaOf(const TablePicture& table) {
  return {table.place[0], table.place[1] - Sum(table.heights), table.place[0] + Sum(table.widths),
          table.place[1]};
}

Outline AreaOf(const std::vector<ShownFace>& faces) {
  Outline area = {HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
  for (const ShownFace& face : faces) {
    for (const SheetPoint& at : face) {
      area = {std::min(area[0], at[0]), std::min(area[1], at[1]), std::max(area[2], at[0]),
              std::max(area[3], at[1])};
    }
  }
  return area;
}

bool Overlap(const Outline& a, const Outline& b) {
  return a[0] < b[2] && b[0] < a[2] && a[1] < b[3] && b[1] < a[3];
}

// Whether a box that is drawn later may lie before it.
bool IsCoveredInPart(const ViewPicture& view, std::size_t box) {
  const Outline area = AreaOf(view.boxes[box].front);
  return std::any_of(
      view.boxes.begin() + static_cast<std::ptrdiff_t>(box) + 1, view.boxes.end(),
      [&](const ShownBoxFaces& later) { return Overlap(area, AreaOf(later.front)); });
}

class SheetPainter {
 public:
  SheetPainter(const SheetPicture& sheet, const SheetPicture* other, SheetMoment moment)
      : sheet_(sheet), other_(other), moment_(moment) {
    const SheetSize* const known = FindSheetSize(sheet.size);
    size_ = known == nullptr ? kUnknownSize : *known;
    seen_ = {0, 0, size_.width, size_.height};
    // Letters are as large as the picture needs them, which grows with what lies beside the paper.
    Enclose(sheet.views, [](const ViewPicture& view) { return view.outline; });
    Enclose(sheet.tables, [](const TablePicture& table) { return AreaOf(table); });
    Measure();
    const auto area = [this](bool middle) {
      return [this, middle](const TextPicture& text) { return TextArea(text, middle); };
    };
    Enclose(sheet.dimensions, area(true));
    Enclose(sheet.notes, area(false));
    Measure();
  }

  explicit SheetPainter(const SheetPicture& sheet)
      : sheet_(sheet), other_(nullptr), moment_(SheetMoment::kAfter), ink_(kBlack) {
    const SheetSize* const known = FindSheetSize(sheet.size);
    size_ = known == nullptr ? kUnknownSize : *known;
  }

  std::string Paint() {
    Open();
    Paper();
    return PaintRest();
  }

  Page PaintPage(const std::string& style) {
    const std::string width = N(size_.width);
    const std::string height = N(size_.height);
    svg_ = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", width + "mm") +
           Attribute("height", height + "mm") +
           Attribute("viewBox", "0 0 " + width + " " + height) + Letters() + "><style>" + style +
           "</style>";
    return {PaintRest(), size_.width, size_.height};
  }

 private:
  std::string PaintRest() {
    Frame();
    for (const TablePicture& table : sheet_.tables) Table(table);
    for (const ViewPicture& view : sheet_.views) View(view);
    Texts(sheet_.dimensions, "dimension", true);
    Texts(sheet_.notes, "note", false);
    return svg_ + "</svg>";
  }

  template <typename Item, typename Area>
  void Enclose(const std::vector<Item>& items, const Area& area_of) {
    for (const Item& item : items) {
      const Outline area = area_of(item);
      if (!IsNear(area)) continue;
      for (std::size_t axis = 0; axis < 2; ++axis) {
        seen_[axis] = std::min(seen_[axis], area[axis]);
        seen_[axis + 2] = std::max(seen_[axis + 2], area[axis + 2]);
      }
    }
  }

  void Measure() {
    const double width = seen_[2] - seen_[0] + 2 * kDesk;
    pixels_ = std::min(kMostPixels, kFewestPixels + kPixelsPerUnit * width);
    pixel_ = width / pixels_;
    thick_ = std::max(kThick, kThickPixels * pixel_);
    thin_ = std::max(kThin, kThinPixels * pixel_);
    letters_ = std::max(kLetters, kLetterPixels * pixel_);
  }

  // `middle`: the place is the middle of the text; otherwise its first line begins there.
  Outline TextArea(const TextPicture& text, bool middle) const {
    double width = 0;
    for (const TextLine& line : text.lines) width = std::max(width, WidthOf(line) * letters_);
    const double left = text.place[0] - (middle ? width / 2 : 0);
    const double below = kLineStep * letters_ * static_cast<double>(text.lines.size()) - letters_;
    return {left, text.place[1] - below, left + width, text.place[1] + letters_};
  }

  static std::string N(double value) { return LengthText(value); }
  double Down(double y) const { return size_.height - y; }

  static std::string Attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
  }

  std::string Rectangle(const Outline& area, const std::string& attributes = "") const {
    return "<rect" + Attribute("x", N(area[0])) + Attribute("y", N(Down(area[3]))) +
           Attribute("width", N(area[2] - area[0])) + Attribute("height", N(area[3] - area[1])) +
           attributes + "/>";
  }

  std::string Lines(double width, const char* fill = "none") const {
    return Attribute("fill", fill) + Attribute("stroke", ink_) +
           Attribute("stroke-width", N(width));
  }

  std::string Letters() const {
    return Attribute("fill", ink_) + Attribute("font-family", kFonts) +
           Attribute("font-size", N(letters_)) + Attribute("stroke-linejoin", "round");
  }

  void Open() {
    const double width = seen_[2] - seen_[0] + 2 * kDesk;
    const double height = seen_[3] - seen_[1] + 2 * kDesk;
    svg_ = "<svg class=\"sheet\" xmlns=\"http://www.w3.org/2000/svg\"" +
           Attribute("width", N(std::round(pixels_))) +
           Attribute("viewBox", N(seen_[0] - kDesk) + " " + N(Down(seen_[3]) - kDesk) + " " +
                                    N(width) + " " + N(height)) +
           Letters() + ">";
    const Outline all = {seen_[0] - kDesk, seen_[1] - kDesk, seen_[2] + kDesk, seen_[3] + kDesk};
    svg_ += Rectangle(all, Attribute("fill", "#e4e7eb"));
  }

  void Paper() {
    svg_ += Rectangle({0, 0, size_.width, size_.height},
                      Attribute("class", "paper") + Attribute("fill", "#fff") +
                          Attribute("stroke", "#8d98a4") + Attribute("stroke-width", N(thin_)));
  }

  void Frame() {
    if (sheet_.format.empty()) return;
    const double edge = std::max(size_.width, size_.height) > kNarrowFrom ? kWideEdge : kNarrowEdge;
    const Outline frame = {kBindingEdge, edge, size_.width - edge, size_.height - edge};
    svg_ += Rectangle(frame, Attribute("class", "frame") + Lines(thick_ * 1.3));
    CentringMarks(frame);
  }

  void CentringMarks(const Outline& frame) {
    const std::string x = N(size_.width / 2);
    const std::string y = N(size_.height / 2);
    const auto down = [&](double from, double to) { return "M" + x + " " + N(from) + "V" + N(to); };
    const auto along = [&](double from, double to) {
      return "M" + N(from) + " " + y + "H" + N(to);
    };
    svg_ += "<path d=\"" + down(0, Down(frame[3]) + kCentringMark) +
            down(size_.height, Down(frame[1]) - kCentringMark) +
            along(0, frame[0] + kCentringMark) + along(size_.width, frame[2] - kCentringMark) +
            "\"" + Lines(thick_) + "/>";
  }

  void Halo(const Outline& area, SheetMark mark) {
    const char* const colour = HaloOf(mark);
    if (colour == nullptr) return;
    svg_ += Rectangle(area, Attribute("class", WordOf(mark)) + Attribute("fill", colour) +
                                Attribute("stroke", colour) +
                                Attribute("stroke-width", N(kHaloPixels * pixel_)) +
                                Attribute("stroke-linejoin", "round"));
  }

  void Table(const TablePicture& table) {
    const Outline area = AreaOf(table);
    if (!IsNear(area)) return;
    svg_ += "<g class=\"table\">";
    Halo(area, MarkOf(table, other_ == nullptr ? nullptr : &other_->tables, moment_));
    std::string lines;
    double x = area[0];
    for (std::size_t i = 0; i + 1 < table.widths.size(); ++i) {
      lines += "M" + N(x += table.widths[i]) + " " + N(Down(area[3])) + "V" + N(Down(area[1]));
    }
    double y = area[3];
    for (std::size_t i = 0; i + 1 < table.heights.size(); ++i) {
      lines += "M" + N(area[0]) + " " + N(Down(y -= table.heights[i])) + "H" + N(area[2]);
    }
    svg_ += "<path d=\"" + lines + "\"" + Lines(thin_) + "/>" + Rectangle(area, Lines(thick_));
    svg_ += "<g text-anchor=\"middle\">";
    for (const CellPicture& cell : table.cells) Cell(table, cell);
    svg_ += "</g></g>";
  }

  void Cell(const TablePicture& table, const CellPicture& cell) {
    const auto column = static_cast<std::size_t>(cell.column - 1);
    const auto row = static_cast<std::size_t>(cell.row - 1);
    if (column >= table.widths.size() || row >= table.heights.size() || cell.text.empty()) return;
    const double width = table.widths[column];
    const double height = table.heights[row];
    double x = table.place[0] + width / 2;
    double y = table.place[1] - height / 2;
    for (std::size_t i = 0; i < column; ++i) x += table.widths[i];
    for (std::size_t i = 0; i < row; ++i) y -= table.heights[i];
    const double fits = 0.92 * width / std::max(WidthOf(cell.text), 1.0);
    const double letters = std::min(kCellFill * height, fits);
    svg_ += "<text" + Attribute("x", N(x)) + Attribute("y", N(Down(y) + 0.36 * letters)) +
            Attribute("font-size", N(letters)) + ">" + EscapeHtml(cell.text) + "</text>";
  }

  // Absolute coordinates, upright edges in short.
  std::string Outlined(const ShownFace& face) const {
    std::string path;
    for (std::size_t i = 0; i < face.size(); ++i) {
      const std::string x = N(face[i][0]);
      const std::string y = N(Down(face[i][1]));
      const bool first = i == 0;
      if (!first && x == N(face[i - 1][0])) {
        path += "V" + y;
      } else if (!first && y == N(Down(face[i - 1][1]))) {
        path += "H" + x;
      } else {
        path += (first ? "M" : "L") + x + " " + y;
      }
    }
    return path + "z";
  }

  std::string Outlined(const std::vector<ShownFace>& faces) const {
    std::string path;
    for (const ShownFace& face : faces) path += Outlined(face);
    return path;
  }

  void View(const ViewPicture& view) {
    if (!IsNear(view.outline)) return;
    const SheetMark mark = MarkOf(view, other_ == nullptr ? nullptr : &other_->views, moment_);
    svg_ += "<g class=\"view\"" + Attribute("data-view", std::to_string(view.id)) +
            "><title>view " + std::to_string(view.id) + ", " + EscapeHtml(view.told);
    if (view.left_out > 0) svg_ += ", " + std::to_string(view.left_out) + " more not drawn";
    svg_ += "</title>";
    Halo(view.outline, mark);
    svg_ += Rectangle(view.outline, Attribute("class", "outline") + Attribute("fill", "none"));
    Visible(view);
    if (view.style == DisplayStyle::kHiddenLine) Hidden(view);
    svg_ += "</g>";
  }

  void Visible(const ViewPicture& view) {
    const bool wires = view.style == DisplayStyle::kWireframe;
    const bool shaded = view.style == DisplayStyle::kShaded;
    const char* const fill = wires ? "none" : shaded ? "#d3dae2" : "#fff";
    svg_ += "<g class=\"visible\"" + Lines(thick_, fill) + ">";
    for (const ShownBoxFaces& box : view.boxes) {
      svg_ += "<path d=\"" + Outlined(box.front) + (wires ? Outlined(box.back) : "") + "\"/>";
    }
    svg_ += "</g>";
  }

  // Thin dashes over everything: where the same edges are seen, the thick lines take them in.
  void Hidden(const ViewPicture& view) {
    std::string path;
    for (std::size_t i = 0; i < view.boxes.size(); ++i) {
      const ShownBoxFaces& box = view.boxes[i];
      if (IsCoveredInPart(view, i)) path += Outlined(box.front);
      if (box.front.size() > 1) path += Outlined(box.back);
    }
    if (path.empty()) return;
    svg_ += "<path class=\"hidden\" d=\"" + path + "\"" + Lines(thin_) +
            Attribute("stroke-dasharray", N(4 * thick_) + " " + N(2 * thick_)) + "/>";
  }

  void Texts(const std::vector<TextPicture>& texts, const char* what, bool middle) {
    if (texts.empty()) return;
    const std::vector<TextPicture>* const others = other_ == nullptr ? nullptr
                                                   : middle          ? &other_->dimensions
                                                                     : &other_->notes;
    svg_ +=
        "<g" + Attribute("class", what) + (middle ? Attribute("text-anchor", "middle") : "") + ">";
    for (const TextPicture& text : texts) {
      if (!IsNear(TextArea(text, middle))) continue;
      Halo(TextArea(text, middle), MarkOf(text, others, moment_));
      double y = Down(text.place[1]);
      for (const TextLine& line : text.lines) {
        svg_ += "<text" + Attribute("x", N(text.place[0])) + Attribute("y", N(y)) + ">" +
                Spans(line) + "</text>";
        y += kLineStep * letters_;
      }
    }
    svg_ += "</g>";
  }

  static std::string Span(const std::string& text, const std::string& attributes) {
    return text.empty() ? "" : "<tspan" + attributes + ">" + EscapeHtml(text) + "</tspan>";
  }

  // Limits one above the other: the lower one starts again where the upper one did.
  std::string Spans(const TextLine& line) const {
    constexpr double kRaised = 0.45, kLowered = 0.25;
    const double limit = kLimitLetters * letters_;
    const std::string size = Attribute("font-size", N(limit));
    const std::string back = Attribute("dx", N(-WidthOf(line.upper) * limit));
    // A shift holds for what follows, up to the next one.
    const double above_line = line.upper.empty() ? 0 : kRaised;
    const double below_line = line.lower.empty() ? -above_line : kLowered;
    return EscapeHtml(line.text) +
           Span(line.upper, size + Attribute("dy", N(-kRaised * letters_))) +
           Span(line.lower, size + back + Attribute("dy", N((above_line + kLowered) * letters_))) +
           Span(line.rest, Attribute("dy", N(-below_line * letters_)));
  }

  const SheetPicture& sheet_;
  const SheetPicture* const other_;
  const SheetMoment moment_;
  const char* const ink_ = kInk;
  SheetSize size_ = kUnknownSize;
  Outline seen_{};  // the paper and all that lies beside it
  double pixels_ = kMostPixels;
  double pixel_ = 1;  // in millimetres
  double thick_ = kThick;
  double thin_ = kThin;
  double letters_ = kLetters;
  std::string svg_;
};

}  // namespace

std::string DrawSheet(const SheetPicture& sheet, const SheetPicture* other, SheetMoment moment) {
  return SheetPainter(sheet, other, moment).Paint();
}

Page DrawPage(const SheetPicture& sheet, PageInk ink, bool stroked) {
  if (ink != PageInk::kMono) return SheetPainter(sheet).PaintPage(PageStyle(ink, stroked));
  SheetPicture plain = sheet;
  for (ViewPicture& view : plain.views) {
    if (view.style == DisplayStyle::kShaded) view.style = DisplayStyle::kDefault;
  }
  return SheetPainter(plain).PaintPage(PageStyle(ink, stroked));
}

}  // namespace wb
