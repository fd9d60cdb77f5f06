// QmUpdateSheetScale and QmUpdateMainViewScale. The main view of a sheet is the general view that
// is preselected; else the first one on it that has projections; else the first one.
#include "drawing/change/main_view_scale.h"

#include <functional>
#include <optional>
#include <unordered_set>
#include <vector>

#include "drawing/change/drawing_views.h"
#include "frame/messages/message_box.h"
#include "frame/models/preselection.h"
#include "toolkit/drawing.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

struct Sheet {
  ProDrawing drawing;
  int number;
};

// The sheet that the user looks at.
std::optional<Sheet> CurrentSheet() {
  Sheet sheet = {};
  if (!Ok(ProMdlCurrentGet(&sheet.drawing)) || sheet.drawing == nullptr) return std::nullopt;
  if (!Ok(ProDrawingCurrentSheetGet(sheet.drawing, &sheet.number))) return std::nullopt;
  if (sheet.number < kFirstSheet) return std::nullopt;
  return sheet;
}

ProView PreselectedMainView(ProDrawing drawing) {
  const auto selected = ReadPreselection();
  const int count = selected ? selected->size() : 0;
  for (int i = 0; i < count; ++i) {
    // What is picked inside a view tells that view, too, and is not meant.
    const auto item = ItemOf((*selected)[i]);
    if (!item || item->type != PRO_VIEW) continue;
    ProView view = nullptr;
    if (Ok(ProSelectionViewGet((*selected)[i], &view)) && view != nullptr &&
        IsGeneral(drawing, view)) {
      return view;
    }
  }
  return nullptr;
}

std::vector<ProView> ViewsOn(const Sheet& sheet) {
  std::vector<ProView> views;
  for (const DrawingView& view : ViewsOf(sheet.drawing)) {
    if (view.sheet == sheet.number) views.push_back(view.view);
  }
  return views;
}

ProView MainView(const Sheet& sheet) {
  if (ProView view = PreselectedMainView(sheet.drawing)) return view;
  std::vector<ProView> general;
  std::unordered_set<ProView> parents;
  for (ProView view : ViewsOn(sheet)) {
    ProViewType type = PRO_VIEW_OF_FLAT_TYPE;
    if (!Ok(ProDrawingViewTypeGet(sheet.drawing, view, &type))) continue;
    ProView parent = nullptr;
    if (type == PRO_VIEW_GENERAL) {
      general.push_back(view);
    } else if (type == PRO_VIEW_PROJECTION &&
               Ok(ProDrawingViewParentGet(sheet.drawing, view, &parent))) {
      parents.insert(parent);
    }
  }
  for (ProView view : general) {
    if (parents.contains(view)) return view;
  }
  return general.empty() ? nullptr : general.front();
}

// Those of the main view and its sheet when they differ; nothing, after a message, otherwise.
std::optional<MainViewScales> DifferingScales(const Sheet& sheet) {
  ProView view = MainView(sheet);
  if (view == nullptr) {
    ShowMessage(L"\t当前页面无主视图\t");
    return std::nullopt;
  }
  const auto is_own = HasOwnScale(sheet.drawing, view);
  if (!is_own) return std::nullopt;
  if (*is_own) {
    ProSolid solid = SolidOf(sheet.drawing, view);
    const auto of_view = ScaleOf(sheet.drawing, view);
    const auto of_sheet =
        solid != nullptr ? SheetScale(sheet.drawing, solid, sheet.number) : std::nullopt;
    if (!of_view || !of_sheet) return std::nullopt;
    if (DifferentScales(*of_view, *of_sheet)) {
      return MainViewScales{sheet.drawing, sheet.number, view, solid, *of_view, *of_sheet};
    }
  }
  ShowMessage(L"\t比例一致，无需更新\t");
  return std::nullopt;
}

}  // namespace

ProError AlignScales(const std::function<ProError(const MainViewScales&)>& set) {
  const auto sheet = CurrentSheet();
  if (!sheet) return PRO_TK_E_NOT_FOUND;
  const auto scales = DifferingScales(*sheet);
  if (!scales) return PRO_TK_GENERAL_ERROR;
  const ProError status = set(*scales);
  return Ok(status) ? ProDwgSheetRegenerate(sheet->drawing, sheet->number) : status;
}

}  // namespace qm
