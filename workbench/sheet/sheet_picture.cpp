// Takes pictures of the sheets of a drawing.
#include "workbench/sheet/sheet_picture.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "workbench/base/text.h"
#include "workbench/session/drawing_views.h"
#include "workbench/session/fact_traits.h"
#include "workbench/session/model.h"
#include "workbench/sheet/sheet_text.h"
#include "workbench/sheet/view_boxes.h"

namespace wb {
namespace {

// Boxes of each shown model, collected once for all its views.
using ModelBoxes = std::map<const Model*, std::vector<PlacedBox>>;

ViewPicture PictureOf(const DrawingContent& drawing, const DrawingView& view, ModelBoxes& known) {
  ViewPicture picture;
  picture.id = view.id;
  picture.outline = view.outline;
  picture.style = view.display.style;
  picture.told = WordFor(view.kind);
  if (view.parent != 0) picture.told += " of view " + std::to_string(view.parent);
  picture.told += std::string(", ") + WordFor(view.display.style) + ", " +
                  ScaleText(ScaleInForce(drawing, view));
  const Model* const model = view.shows ? view.shows->model : nullptr;
  if (model == nullptr) return picture;
  auto [boxes, is_new] = known.try_emplace(model);
  if (is_new) boxes->second = BoxesOf(*model);
  DrawBoxes(boxes->second, ViewToDrawing(drawing, view), picture);
  return picture;
}

// "&scale" stands for the sheet's scale, "&NAME" for a parameter of the model that is shown.
std::string CellText(const DrawingContent& drawing, const Sheet& sheet, const std::string& text) {
  if (!text.starts_with('&')) return WithSymbols(text);
  const std::string name = text.substr(1);
  const Model* const model = drawing.shows ? drawing.shows->model : nullptr;
  if (EqualFolded(name, "scale")) {
    return ScaleText(drawing.shows ? SheetScale(sheet, drawing.shows->name) : sheet.scale);
  }
  const Parameter* const parameter =
      model == nullptr ? nullptr : model->parameters.Find(FoldCase(name));
  return parameter == nullptr ? text : ParameterText(parameter->value);
}

TablePicture PictureOf(const DrawingContent& drawing, const Sheet& sheet,
                       const DrawingTable& table) {
  TablePicture picture{table.id, table.place, table.widths, table.heights, {}};
  for (const DrawingCell& cell : table.cells) {
    picture.cells.push_back({cell.row, cell.column, CellText(drawing, sheet, cell.text)});
  }
  return picture;
}

SheetPicture PictureOf(const DrawingContent& drawing, int number, ModelBoxes& known) {
  const Sheet& sheet = *FindSheet(drawing, number);
  SheetPicture picture{sheet.size, sheet.scale, sheet.format_shown ? sheet.format : ""};
  if (drawing.shows) picture.scale = SheetScale(sheet, drawing.shows->name);
  for (const DrawingView& view : drawing.views) {
    if (view.sheet == number) picture.views.push_back(PictureOf(drawing, view, known));
  }
  for (const DrawingTable& table : drawing.tables) {
    if (std::ranges::count(table.segments, number) == 0) continue;
    picture.tables.push_back(PictureOf(drawing, sheet, table));
  }
  for (const Dimension& dimension : drawing.dimensions) {
    if (dimension.sheet != number) continue;
    picture.dimensions.push_back({dimension.id, dimension.place, LinesOf(dimension)});
  }
  for (const SheetNote& note : drawing.notes) {
    if (note.sheet == number) picture.notes.push_back({note.id, note.place, LinesOf(note)});
  }
  return picture;
}

}  // namespace

std::string ScaleText(double scale) {
  if (!(scale > 0)) return NumberText(scale);
  char text[32];
  std::snprintf(text, sizeof text, "%.4g", scale < 1 ? 1 / scale : scale);
  return scale < 1 ? std::string("1:") + text : std::string(text) + ":1";
}

std::vector<SheetPicture> PictureOf(const DrawingContent& drawing) {
  ModelBoxes known;
  std::vector<SheetPicture> sheets;
  for (int number = kFirstSheet; number <= static_cast<int>(drawing.sheets.size()); ++number) {
    sheets.push_back(PictureOf(drawing, number, known));
  }
  return sheets;
}

}  // namespace wb
