// Draws sheets as a design office does: thick lines for what is seen, thin ones for the rest, black
// on white whatever the colours of the page around them.
#include "workbench/sheet/sheet_svg.h"

#include <algorithm>
#include <cmath>

#include "workbench/base/html_text.h"
#include "workbench/sheet/sheet_areas.h"
#include "workbench/sheet/sheet_canvas.h"
#include "workbench/sheet/sheet_text.h"

namespace wb {
namespace {

// Of the frame from the paper's edge; the left one is for binding.
constexpr double kBindingEdge = 25;
constexpr double kWideEdge = 10;
constexpr double kNarrowEdge = 5;
constexpr double kNarrowFrom = 420;  // sheets up to this width have narrow edges
constexpr double kCentringMark = 5;  // into the frame

constexpr double kLineStep = 1.4;  // from line to line, in letters
constexpr double kCellFill = 0.6;  // of a cell's height, for its letters

// What distinguishes texts and hidden edges on a page.
std::string PageStyle(PageInk ink, bool stroked) {
  constexpr const char* kStyles[] = {
      ".dimension{fill:#1246a8}.note{fill:#0a6b2d}.hidden{stroke:#9a5b00}",
      ".dimension,.note{fill:#555}.hidden{stroke:#777}", ""};
  const std::string letters = "text{fill:none;stroke:#000;stroke-width:.25}";
  return kStyles[static_cast<std::size_t>(ink)] + (stroked ? letters : "");
}

class SheetPainter {
 public:
  SheetPainter(const SheetPicture& sheet, const SheetPicture* other, SheetMoment moment)
      : sheet_(sheet), other_(other), moment_(moment), canvas_(sheet.size, kInk) {
    // Letters are as large as the picture needs them, which grows with what lies beside the paper.
    for (const ViewPicture& view : sheet.views) canvas_.Enclose(view.outline);
    for (const TablePicture& table : sheet.tables) canvas_.Enclose(AreaOf(table));
    canvas_.Measure();
    for (const TextPicture& text : sheet.dimensions) canvas_.Enclose(TextArea(text, true));
    for (const TextPicture& text : sheet.notes) canvas_.Enclose(TextArea(text, false));
    canvas_.Measure();
  }

  // A page of its own.
  explicit SheetPainter(const SheetPicture& sheet)
      : sheet_(sheet), other_(nullptr), moment_(SheetMoment::kAfter), canvas_(sheet.size, kBlack) {}

  std::string Paint() {
    svg_ = canvas_.Begin();
    Paper();
    return PaintRest();
  }

  Page PaintPage(const std::string& style) {
    svg_ = canvas_.BeginPage(style);
    return {PaintRest(), canvas_.size().width, canvas_.size().height};
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

  // `middle`: the place is the middle of the text; otherwise its first line begins there.
  Outline TextArea(const TextPicture& text, bool middle) const {
    double width = 0;
    for (const TextLine& line : text.lines) width = std::max(width, WidthOf(line));
    width *= canvas_.letters();
    const double left = text.place[0] - (middle ? width / 2 : 0);
    const double below =
        kLineStep * canvas_.letters() * static_cast<double>(text.lines.size()) - canvas_.letters();
    return {left, text.place[1] - below, left + width, text.place[1] + canvas_.letters()};
  }

  static std::string N(double value) { return LengthText(value); }

  void Paper() {
    const SheetSize& paper = canvas_.size();
    svg_ += canvas_.Rectangle({0, 0, paper.width, paper.height},
                              SvgAttribute("class", "paper") + SvgAttribute("fill", "#fff") +
                                  SvgAttribute("stroke", "#8d98a4") +
                                  SvgAttribute("stroke-width", N(canvas_.thin())));
  }

  void Frame() {
    const SheetSize& paper = canvas_.size();
    if (sheet_.format.empty()) return;
    const double edge = std::max(paper.width, paper.height) > kNarrowFrom ? kWideEdge : kNarrowEdge;
    const Outline frame = {kBindingEdge, edge, paper.width - edge, paper.height - edge};
    svg_ += canvas_.Rectangle(
        frame, SvgAttribute("class", "frame") + canvas_.Lines(canvas_.thick() * 1.3));
    CentringMarks(frame);
  }

  void CentringMarks(const Outline& frame) {
    const SheetSize& paper = canvas_.size();
    const std::string x = N(paper.width / 2);
    const std::string y = N(paper.height / 2);
    const auto down = [&](double from, double to) { return "M" + x + " " + N(from) + "V" + N(to); };
    const auto along = [&](double from, double to) {
      return "M" + N(from) + " " + y + "H" + N(to);
    };
    svg_ += "<path d=\"" + down(0, canvas_.Down(frame[3]) + kCentringMark) +
            down(paper.height, canvas_.Down(frame[1]) - kCentringMark) +
            along(0, frame[0] + kCentringMark) + along(paper.width, frame[2] - kCentringMark) +
            "\"" + canvas_.Lines(canvas_.thick()) + "/>";
  }

  void Table(const TablePicture& table) {
    const Outline area = AreaOf(table);
    if (!IsNear(area)) return;
    svg_ += "<g class=\"table\">";
    svg_ +=
        canvas_.Halo(area, MarkOf(table, other_ == nullptr ? nullptr : &other_->tables, moment_));
    std::string lines;
    double x = area[0];
    for (std::size_t i = 0; i + 1 < table.widths.size(); ++i) {
      lines += "M" + N(x += table.widths[i]) + " " + N(canvas_.Down(area[3])) + "V" +
               N(canvas_.Down(area[1]));
    }
    double y = area[3];
    for (std::size_t i = 0; i + 1 < table.heights.size(); ++i) {
      lines += "M" + N(area[0]) + " " + N(canvas_.Down(y -= table.heights[i])) + "H" + N(area[2]);
    }
    svg_ += "<path d=\"" + lines + "\"" + canvas_.Lines(canvas_.thin()) + "/>" +
            canvas_.Rectangle(area, canvas_.Lines(canvas_.thick()));
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
    svg_ += "<text" + SvgAttribute("x", N(x)) +
            SvgAttribute("y", N(canvas_.Down(y) + 0.36 * letters)) +
            SvgAttribute("font-size", N(letters)) + ">" + EscapeHtml(cell.text) + "</text>";
  }

  void View(const ViewPicture& view) {
    if (!IsNear(view.outline)) return;
    const SheetMark mark = MarkOf(view, other_ == nullptr ? nullptr : &other_->views, moment_);
    svg_ += "<g class=\"view\"" + SvgAttribute("data-view", std::to_string(view.id)) +
            "><title>view " + std::to_string(view.id) + ", " + EscapeHtml(view.told);
    if (view.left_out > 0) svg_ += ", " + std::to_string(view.left_out) + " more not drawn";
    svg_ += "</title>";
    svg_ += canvas_.Halo(view.outline, mark);
    svg_ += canvas_.Rectangle(view.outline,
                              SvgAttribute("class", "outline") + SvgAttribute("fill", "none"));
    Visible(view);
    if (view.style == DisplayStyle::kHiddenLine) Hidden(view);
    svg_ += "</g>";
  }

  void Visible(const ViewPicture& view) {
    const bool wires = view.style == DisplayStyle::kWireframe;
    const bool shaded = view.style == DisplayStyle::kShaded;
    const char* const fill = wires ? "none" : shaded ? "#d3dae2" : "#fff";
    svg_ += "<g class=\"visible\"" + canvas_.Lines(canvas_.thick(), fill) + ">";
    for (const ShownBoxFaces& box : view.boxes) {
      svg_ += "<path d=\"" + canvas_.Around(box.front) + (wires ? canvas_.Around(box.back) : "") +
              "\"/>";
    }
    svg_ += "</g>";
  }

  // Thin dashes over everything: where the same edges are seen, the thick lines take them in.
  void Hidden(const ViewPicture& view) {
    std::string path;
    for (std::size_t i = 0; i < view.boxes.size(); ++i) {
      const ShownBoxFaces& box = view.boxes[i];
      if (IsCoveredInPart(view, i)) path += canvas_.Around(box.front);
      if (box.front.size() > 1) path += canvas_.Around(box.back);
    }
    if (path.empty()) return;
    svg_ +=
        "<path class=\"hidden\" d=\"" + path + "\"" + canvas_.Lines(canvas_.thin()) +
        SvgAttribute("stroke-dasharray", N(4 * canvas_.thick()) + " " + N(2 * canvas_.thick())) +
        "/>";
  }

  void Texts(const std::vector<TextPicture>& texts, const char* what, bool middle) {
    if (texts.empty()) return;
    const std::vector<TextPicture>* const others = other_ == nullptr ? nullptr
                                                   : middle          ? &other_->dimensions
                                                                     : &other_->notes;
    svg_ += "<g" + SvgAttribute("class", what) +
            (middle ? SvgAttribute("text-anchor", "middle") : "") + ">";
    for (const TextPicture& text : texts) {
      if (!IsNear(TextArea(text, middle))) continue;
      svg_ += canvas_.Halo(TextArea(text, middle), MarkOf(text, others, moment_));
      double y = canvas_.Down(text.place[1]);
      for (const TextLine& line : text.lines) {
        svg_ += "<text" + SvgAttribute("x", N(text.place[0])) + SvgAttribute("y", N(y)) + ">" +
                Spans(line) + "</text>";
        y += kLineStep * canvas_.letters();
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
    const double limit = kLimitLetters * canvas_.letters();
    const std::string size = SvgAttribute("font-size", N(limit));
    const std::string back = SvgAttribute("dx", N(-WidthOf(line.upper) * limit));
    // A shift holds for what follows, up to the next one.
    const double above_line = line.upper.empty() ? 0 : kRaised;
    const double below_line = line.lower.empty() ? -above_line : kLowered;
    return EscapeHtml(line.text) +
           Span(line.upper, size + SvgAttribute("dy", N(-kRaised * canvas_.letters()))) +
           Span(line.lower,
                size + back + SvgAttribute("dy", N((above_line + kLowered) * canvas_.letters()))) +
           Span(line.rest, SvgAttribute("dy", N(-below_line * canvas_.letters())));
  }

  const SheetPicture& sheet_;
  const SheetPicture* const other_;
  const SheetMoment moment_;
  SheetCanvas canvas_;
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
