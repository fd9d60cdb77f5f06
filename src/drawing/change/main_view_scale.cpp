// QmUpdateSheetScale and QmUpdateMainViewScale. The main view of a sheet is the general view that
// is preselected, on whatever sheet it lies; else the first one on it that has projections; else
// the first one.
#include "drawing/change/main_view_scale.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <unordered_set>
#include <vector>

#include "drawing/change/drawing_views.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
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
    // Nor is a view of a drawing that was shown before.
    if (!item || item->type != PRO_VIEW || item->owner != drawing) continue;
    ProView view = nullptr;
    if (Ok(ProSelectionViewGet((*selected)[i], &view)) && view != nullptr &&
        IsGeneral(drawing, view)) {
      return view;
    }
  }
  return nullptr;
}

// Those that a projection on whatever sheet is taken from.
std::unordered_set<ProView> Parents(ProDrawing drawing, const std::vector<DrawingView>& views) {
  std::unordered_set<ProView> parents;
  for (const DrawingView& view : views) {
    ProViewType type = PRO_VIEW_OF_FLAT_TYPE;
    ProView parent = nullptr;
    if (Ok(ProDrawingViewTypeGet(drawing, view.view, &type)) && type == PRO_VIEW_PROJECTION &&
        Ok(ProDrawingViewParentGet(drawing, view.view, &parent))) {
      parents.insert(parent);
    }
  }
  return parents;
}

// Without a view when there is none.
DrawingView MainView(const Sheet& sheet) {
  const auto [status, views] = ViewsOf(sheet.drawing);
  if (views.empty()) LogFailure(sheet.drawing, "ProDrawingViewsCollect", status);
  if (ProView preselected = PreselectedMainView(sheet.drawing)) {
    const auto at = std::ranges::find(views, preselected, &DrawingView::view);
    return at != views.end() ? *at : DrawingView{preselected, sheet.number};
  }
  std::vector<DrawingView> general;
  for (const DrawingView& view : views) {
    if (view.sheet == sheet.number && IsGeneral(sheet.drawing, view.view)) general.push_back(view);
  }
  const auto parents = Parents(sheet.drawing, views);
  for (const DrawingView& view : general) {
    if (parents.contains(view.view)) return view;
  }
  return general.empty() ? DrawingView() : general.front();
}

// Those of the main view and its sheet when they differ; nothing, after a message, otherwise.
std::optional<MainViewScales> DifferingScales(const Sheet& sheet) {
  ProDrawing const drawing = sheet.drawing;
  const auto [view, number] = MainView(sheet);
  if (view == nullptr) {
    ShowMessage(L"\t当前页面无主视图\t");
    return std::nullopt;
  }
  const auto is_own = HasOwnScale(drawing, view);
  if (!is_own) return std::nullopt;
  if (*is_own) {
    ProSolid solid = SolidOf(drawing, view);
    const auto of_view = ScaleOf(drawing, view);
    const auto of_sheet = solid != nullptr ? SheetScale(drawing, solid, number) : std::nullopt;
    if (!of_view || !of_sheet) return std::nullopt;
    if (DifferentScales(*of_view, *of_sheet)) {
      return MainViewScales{drawing, number, view, solid, *of_view, *of_sheet};
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
  return Ok(status) ? ProDwgSheetRegenerate(scales->drawing, scales->sheet) : status;
}

}  // namespace qm
