// What one sees of a drawing's sheets at one moment: lines, cells and texts where they lie, in
// millimetres from the lower left corner of the sheet. Plain data, so that a sheet from before a
// command can be laid beside the one after it when its models have long changed.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "workbench/session/drawing.h"

namespace wb {

// A face of a box as it lies on the sheet.
using ShownFace = std::array<SheetPoint, 4>;

// A component of the shown model, as the box around it.
struct ShownBoxFaces {
  std::vector<ShownFace> front;  // those that face whoever looks at the sheet
  std::vector<ShownFace> back;
  bool operator==(const ShownBoxFaces&) const = default;
};

struct ViewPicture {
  int id = 0;
  std::string told;  // "projection of view 1, hidden_line, 1:2"
  Outline outline{};
  DisplayStyle style = DisplayStyle::kDefault;
  std::vector<ShownBoxFaces> boxes;  // the furthest first
  std::size_t left_out = 0;          // boxes that are too many or too small to be drawn
  bool operator==(const ViewPicture&) const = default;
};

struct CellPicture {
  int row = 1;
  int column = 1;
  std::string text;
  bool operator==(const CellPicture&) const = default;
};

struct TablePicture {
  int id = 0;
  SheetPoint place{};  // the upper left corner
  std::vector<double> widths;
  std::vector<double> heights;
  std::vector<CellPicture> cells;
  bool operator==(const TablePicture&) const = default;
};

// A line of text: what comes first, limits one above the other, what follows them.
struct TextLine {
  std::string text;
  std::string upper{};
  std::string lower{};
  std::string rest{};
  bool operator==(const TextLine&) const = default;
};

struct TextPicture {
  int id = 0;
  SheetPoint place{};
  std::vector<TextLine> lines;
  bool operator==(const TextPicture&) const = default;
};

struct SheetPicture {
  std::string size;  // "A3"
  double scale = 1.0;
  std::string format{};  // whose frame is shown; empty: none
  std::vector<ViewPicture> views{};
  std::vector<TablePicture> tables{};
  std::vector<TextPicture> dimensions{};
  std::vector<TextPicture> notes{};
  bool operator==(const SheetPicture&) const = default;
};

// "1:2", "5:1".
std::string ScaleText(double scale);

std::vector<SheetPicture> PictureOf(const DrawingContent& drawing);

}  // namespace wb
