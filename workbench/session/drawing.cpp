// Sheets, scales, models and formats of drawings.
#include "workbench/session/drawing.h"

#include <algorithm>

#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr SheetSize kSheetSizes[] = {
    {"A0", 1189, 841}, {"A1", 841, 594}, {"A2", 594, 420},
    {"A3", 420, 297},  {"A4", 210, 297}, {"A4H", 297, 210},
};

}  // namespace

const SheetSize* FindSheetSize(std::string_view name) {
  const auto found = std::ranges::find_if(
      kSheetSizes, [&](const SheetSize& size) { return EqualFolded(name, size.name); });
  return found == std::end(kSheetSizes) ? nullptr : found;
}

Sheet* FindSheet(DrawingContent& drawing, int number) {
  const bool is_there = number >= 1 && number <= static_cast<int>(drawing.sheets.size());
  return is_there ? &drawing.sheets[static_cast<size_t>(number - 1)] : nullptr;
}

const Sheet* FindSheet(const DrawingContent& drawing, int number) {
  return FindSheet(const_cast<DrawingContent&>(drawing), number);
}

std::vector<Model*> DrawnModels(const DrawingContent& drawing) {
  std::vector<Model*> models;
  const auto add = [&](Model* model) {
    const bool known = model == nullptr || std::ranges::count(models, model) > 0;
    if (!known) models.push_back(model);
  };
  const auto is_current = [&](const DrawnModel& drawn) {
    return EqualFolded(drawn.link.name.Text(), drawing.shows->name.Text());
  };
  const bool current_listed = !drawing.shows || std::ranges::any_of(drawing.models, is_current);
  if (!current_listed) add(drawing.shows->model);
  for (const DrawnModel& drawn : drawing.models) add(drawn.link.model);
  return models;
}

bool IsDrawn(const DrawingContent& drawing, const Model& model) {
  return std::ranges::count(DrawnModels(drawing), &model) > 0;
}

void ShowModel(DrawingContent& drawing, const ModelLink& model) {
  const auto lists = [&](const ModelLink& link) {
    return std::ranges::any_of(drawing.models, [&](const DrawnModel& drawn) {
      return EqualFolded(drawn.link.name.Text(), link.name.Text());
    });
  };
  if (drawing.shows && !lists(*drawing.shows)) {
    drawing.models.insert(drawing.models.begin(), {*drawing.shows});
  }
  if (!lists(model)) drawing.models.push_back({model});
  drawing.shows = model;
}

DrawingContent MadeOf(const DrawingContent& pattern, const ModelLink& model) {
  DrawingContent made;
  made.shows = model;
  made.sheets = pattern.sheets;
  if (made.sheets.empty()) made.sheets.emplace_back();
  for (Sheet& sheet : made.sheets) sheet.scales.Clear();
  made.tables = pattern.tables;
  made.notes = pattern.notes;
  return made;
}

double SheetScale(const Sheet& sheet, const ModelName& model) {
  const ModelScale* const own = sheet.scales.Find(FoldCase(model.Text()));
  return own == nullptr ? sheet.scale : own->scale;
}

void SetSheetScale(Sheet& sheet, const ModelName& model, double scale) {
  if (ModelScale* const own = sheet.scales.Find(FoldCase(model.Text()))) {
    own->scale = scale;
  } else {
    sheet.scales.Add({model.Text(), scale});
  }
}

SheetPoint OnSheet(const Sheet& sheet, const SheetPoint& on_screen) {
  const Placement& m = sheet.transform;
  SheetPoint point;
  for (size_t axis = 0; axis < 2; ++axis) {
    point[axis] = on_screen[0] * m[0][axis] + on_screen[1] * m[1][axis] + m[3][axis];
  }
  return point;
}

SheetPoint OnScreen(const Sheet& sheet, const SheetPoint& on_sheet) {
  const Placement& m = sheet.transform;
  const double area = m[0][0] * m[1][1] - m[0][1] * m[1][0];
  const double x = on_sheet[0] - m[3][0];
  const double y = on_sheet[1] - m[3][1];
  return {(x * m[1][1] - y * m[1][0]) / area, (y * m[0][0] - x * m[0][1]) / area};
}

bool PlaceFormat(DrawingContent& drawing, int sheet, const ModelName& format,
                 const FormatContent& content, int format_sheet) {
  const int number = std::max(format_sheet, kFirstSheet);
  Sheet* const at = FindSheet(drawing, sheet);
  if (at == nullptr || number > static_cast<int>(content.sheets.size())) return false;
  const FormatSheet& from = content.sheets[static_cast<size_t>(number - 1)];
  at->size = from.size;
  at->format = format.Text();
  at->format_sheet = number;
  at->format_shown = true;
  for (DrawingTable table : from.tables) {
    table.id = NextId(drawing.tables);
    table.format = format.Text();
    table.segments = {sheet};
    drawing.tables.Add(std::move(table));
  }
  return true;
}

}  // namespace wb
