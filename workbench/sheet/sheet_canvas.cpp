// Lines, letters and elements of a sheet's picture.
#include "workbench/sheet/sheet_canvas.h"

#include <algorithm>
#include <cmath>

#include "workbench/sheet/sheet_areas.h"
#include "workbench/sheet/sheet_text.h"

namespace wb {
namespace {

constexpr SheetSize kUnknownSize = {"", 297, 210};
constexpr double kDesk = 4;  // seen around the paper

// In pixels of the picture: a small sheet stays legible, a large one fits the page.
constexpr double kFewestPixels = 200;
constexpr double kPixelsPerUnit = 1.6;
constexpr double kMostPixels = 1100;
// Lines and letters in millimetres, and the least of them in pixels.
constexpr double kThick = 0.5, kThickPixels = 1.5;
constexpr double kThin = 0.18, kThinPixels = 0.7;
constexpr double kHaloPixels = 7;
constexpr double kLetters = 5, kLetterPixels = 11;

constexpr const char* kFonts =
    "'Segoe UI','Microsoft YaHei','PingFang SC','Noto Sans CJK SC','Source Han Sans SC',SimSun,"
    "'Segoe UI Symbol','DejaVu Sans',sans-serif";

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

}  // namespace

std::string SvgAttribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + "\"";
}

SheetCanvas::SheetCanvas(const std::string& size, const char* ink)
    : ink_(ink), thick_(kThick), thin_(kThin), letters_(kLetters) {
  const SheetSize* const known = FindSheetSize(size);
  size_ = known == nullptr ? kUnknownSize : *known;
  seen_ = {0, 0, size_.width, size_.height};
}

void SheetCanvas::Enclose(const Outline& area) {
  if (!IsNear(area)) return;
  for (std::size_t axis = 0; axis < 2; ++axis) {
    seen_[axis] = std::min(seen_[axis], area[axis]);
    seen_[axis + 2] = std::max(seen_[axis + 2], area[axis + 2]);
  }
}

void SheetCanvas::Measure() {
  const double width = seen_[2] - seen_[0] + 2 * kDesk;
  pixels_ = std::min(kMostPixels, kFewestPixels + kPixelsPerUnit * width);
  pixel_ = width / pixels_;
  thick_ = std::max(kThick, kThickPixels * pixel_);
  thin_ = std::max(kThin, kThinPixels * pixel_);
  letters_ = std::max(kLetters, kLetterPixels * pixel_);
}

std::string SheetCanvas::Begin() const {
  const Outline all = {seen_[0] - kDesk, seen_[1] - kDesk, seen_[2] + kDesk, seen_[3] + kDesk};
  const std::string box = LengthText(all[0]) + " " + LengthText(Down(all[3])) + " " +
                          LengthText(all[2] - all[0]) + " " + LengthText(all[3] - all[1]);
  return "<svg class=\"sheet\" xmlns=\"http://www.w3.org/2000/svg\"" +
         SvgAttribute("width", LengthText(std::round(pixels_))) + SvgAttribute("viewBox", box) +
         Letters() + ">" + Rectangle(all, SvgAttribute("fill", "#e4e7eb"));
}

std::string SheetCanvas::BeginPage(const std::string& style) const {
  const std::string width = LengthText(size_.width);
  const std::string height = LengthText(size_.height);
  return "<svg xmlns=\"http://www.w3.org/2000/svg\"" + SvgAttribute("width", width + "mm") +
         SvgAttribute("height", height + "mm") +
         SvgAttribute("viewBox", "0 0 " + width + " " + height) + Letters() + "><style>" + style +
         "</style>";
}

std::string SheetCanvas::Letters() const {
  return SvgAttribute("fill", ink_) + SvgAttribute("font-family", kFonts) +
         SvgAttribute("font-size", LengthText(letters_)) + SvgAttribute("stroke-linejoin", "round");
}

std::string SheetCanvas::Lines(double width, const char* fill) const {
  return SvgAttribute("fill", fill) + SvgAttribute("stroke", ink_) +
         SvgAttribute("stroke-width", LengthText(width));
}

std::string SheetCanvas::Rectangle(const Outline& area, const std::string& attributes) const {
  return "<rect" + SvgAttribute("x", LengthText(area[0])) +
         SvgAttribute("y", LengthText(Down(area[3]))) +
         SvgAttribute("width", LengthText(area[2] - area[0])) +
         SvgAttribute("height", LengthText(area[3] - area[1])) + attributes + "/>";
}

std::string SheetCanvas::Halo(const Outline& area, SheetMark mark) const {
  const char* const colour = HaloOf(mark);
  if (colour == nullptr) return "";
  return Rectangle(area, SvgAttribute("class", WordOf(mark)) + SvgAttribute("fill", colour) +
                             SvgAttribute("stroke", colour) +
                             SvgAttribute("stroke-width", LengthText(kHaloPixels * pixel_)) +
                             SvgAttribute("stroke-linejoin", "round"));
}

std::string SheetCanvas::Around(const ShownFace& face) const {
  std::string path;
  for (std::size_t i = 0; i < face.size(); ++i) {
    const std::string x = LengthText(face[i][0]);
    const std::string y = LengthText(Down(face[i][1]));
    const bool first = i == 0;
    if (!first && x == LengthText(face[i - 1][0])) {
      path += "V" + y;
    } else if (!first && y == LengthText(Down(face[i - 1][1]))) {
      path += "H" + x;
    } else {
      path += (first ? "M" : "L") + x + " " + y;
    }
  }
  return path + "z";
}

std::string SheetCanvas::Around(const std::vector<ShownFace>& faces) const {
  std::string path;
  for (const ShownFace& face : faces) path += Around(face);
  return path;
}

}  // namespace wb
