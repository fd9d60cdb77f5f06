// The desk that a sheet is drawn on as SVG: what of it is seen, how thick its lines and how large
// its letters are, and the elements that everything on it is made of.
#pragma once

#include <string>

#include "workbench/sheet/sheet_marks.h"
#include "workbench/sheet/sheet_picture.h"

namespace wb {

inline constexpr const char* kInk = "#14181d";
inline constexpr const char* kBlack = "#000";

std::string SvgAttribute(const char* name, const std::string& value);

class SheetCanvas {
 public:
  // The paper by the name of its size. Lines and letters are those of paper until Measure makes
  // them fit a picture.
  SheetCanvas(const std::string& size, const char* ink);

  // What lies beside the paper is seen as well. Lines and letters hold for all that was enclosed
  // before the last Measure.
  void Enclose(const Outline& area);
  void Measure();

  const SheetSize& size() const { return size_; }
  double thick() const { return thick_; }
  double thin() const { return thin_; }
  double letters() const { return letters_; }

  // SVG counts from the top.
  double Down(double y) const { return size_.height - y; }

  std::string Begin() const;
  // The paper alone at its true size.
  std::string BeginPage(const std::string& style) const;
  // Lines of ink around an area.
  std::string Lines(double width, const char* fill = "none") const;
  std::string Rectangle(const Outline& area, const std::string& attributes) const;
  // What marks a changed thing; nothing for one that is the same.
  std::string Halo(const Outline& area, SheetMark mark) const;
  // Steps of a path around faces: absolute coordinates, upright edges in short.
  std::string Around(const std::vector<ShownFace>& faces) const;

 private:
  std::string Around(const ShownFace& face) const;
  std::string Letters() const;

  const char* const ink_;
  SheetSize size_;
  Outline seen_{};  // the paper and all that lies beside it
  double pixels_ = 0;
  double pixel_ = 1;  // in millimetres
  double thick_;
  double thin_;
  double letters_;
};

}  // namespace wb
