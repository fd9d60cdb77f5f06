// Draws message boxes and drawing sheets for the report.
#include "workbench/report/report_shown.h"

#include "workbench/base/html_text.h"
#include "workbench/report/report_text.h"
#include "workbench/scene/scene_svg.h"
#include "workbench/sheet/sheet_svg.h"

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

std::string SheetFigure(const DrawingPicture& drawing, std::size_t number,
                        const SheetPicture& sheet, const char* moment, const std::string& svg) {
  std::string html = "<figure class=\"drawn\"><figcaption>" + EscapeHtml(drawing.name) +
                     ", sheet " + std::to_string(number + 1) + ", " + EscapeHtml(sheet.size) +
                     ", " + ScaleText(sheet.scale);
  if (!drawing.shows.empty()) html += ", of " + EscapeHtml(drawing.shows);
  return html + moment + "</figcaption>" + svg + "</figure>";
}

// One picture of a sheet that is the same before and after, or was not there; otherwise both.
std::string SheetFigures(const DrawingPicture& drawing, std::size_t number) {
  const SheetPicture& after = drawing.sheets[number];
  const SheetPicture* const before =
      number < drawing.before.size() ? &drawing.before[number] : nullptr;
  if (before == nullptr) {
    const char* const moment = drawing.before.empty() ? "" : " <mark>new</mark>";
    return SheetFigure(drawing, number, after, moment, DrawSheet(after));
  }
  if (*before == after) {
    return SheetFigure(drawing, number, after, ", the same before and after", DrawSheet(after));
  }
  return SheetFigure(drawing, number, *before, " <mark>before</mark>",
                     DrawSheet(*before, &after, SheetMoment::kBefore)) +
         SheetFigure(drawing, number, after, " <mark>after</mark>",
                     DrawSheet(after, before, SheetMoment::kAfter));
}

std::string SceneFigure(const Scene& scene, const SceneFrame& frame, const char* moment) {
  if (scene.model.empty()) return {};
  const std::size_t drawn = scene.boxes.size();
  const std::string more = scene.are_all_met ? "small part" : "part";
  std::string chosen;
  if (!scene.are_all_met) {
    chosen = "<p class=\"more\">Drawn are the largest of the first " +
             Counted(kMostOccurrencesMet, "component") + ".</p>";
  }
  return "<figure><figcaption>" + EscapeHtml(scene.model) + moment + "</figcaption>" +
         DrawScene(scene, frame) + MoreLine(drawn + scene.left_out, drawn, more) + chosen +
         "</figure>";
}

}  // namespace

std::string DrawScenes(const CommandRecord& command) {
  const Scene& before = command.scene_before;
  const Scene& after = command.scene_after;
  const SceneFrame frame = Around(FrameOf(before), FrameOf(after));
  if (after.model.empty()) return SceneFigure(before, frame, "");
  return SceneFigure(before, frame, " <mark>before</mark>") +
         SceneFigure(after, frame, " <mark>after</mark>");
}

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
  for (std::size_t i = 0; i < drawing.sheets.size(); ++i) html += SheetFigures(drawing, i);
  for (std::size_t i = drawing.sheets.size(); i < drawing.before.size(); ++i) {
    html += SheetFigure(drawing, i, drawing.before[i], " <mark>removed</mark>",
                        DrawSheet(drawing.before[i]));
  }
  return html;
}

}  // namespace wb
