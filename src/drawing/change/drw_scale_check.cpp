// QmDrwScaleCheck: names the sheets of the working directory's drawings on which a general view has
// another scale than the sheet has for its model. Nothing is saved, and nothing is set but the
// current sheet.
#include "drawing/change/drw_scale_check.h"

#include <algorithm>
#include <string>
#include <vector>

#include "drawing/change/drawing_views.h"
#include "frame/folders/folder_drawings.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "toolkit/drawing.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kHeader[] = L"以下工程图中存在主视图比例与页面比例不符，请检查：";
constexpr wchar_t kNothingFound[] =
    L"当前工作目录中工程图已检查完毕，不存在主视图比例与页面比例不符情况。";

bool DiffersFromSheet(ProDrawing drawing, ProView view, int sheet) {
  ProSolid solid = SolidOf(drawing, view);
  if (solid == nullptr) return false;
  const auto wanted = SheetScale(drawing, solid, sheet);
  if (!wanted || !IsGeneral(drawing, view)) return false;
  const auto scale = ScaleOf(drawing, view);
  return scale && DifferentScales(*scale, *wanted);
}

// One line for each sheet with a finding.
void CheckDrawing(ProDrawing drawing, const std::wstring& file_name, std::wstring* report) {
  const auto [status, views] = ViewsOf(drawing);
  if (views.empty()) return LogFailure(file_name, "ProDrawingViewsCollect", status);
  const std::wstring name = ModelName(drawing).value_or(file_name);
  const auto sheets = BySheet(views, SheetCount(drawing));
  for (size_t i = 0; i < sheets.size(); ++i) {
    const int sheet = static_cast<int>(i) + kFirstSheet;
    ShowSheet(drawing, sheet);
    if (std::ranges::any_of(sheets[i],
                            [&](ProView view) { return DiffersFromSheet(drawing, view, sheet); })) {
      *report += L"\n图纸'" + name + L"' 第" + std::to_wstring(sheet) + L"页";
    }
  }
}

}  // namespace

ProError QmDrwScaleCheck() {
  const std::vector<std::wstring> names = DrawingsOfFolder();
  if (names.empty()) return PRO_TK_E_NOT_FOUND;
  std::wstring findings;
  ForEachDrawing(names, [&](ProDrawing drawing, const std::wstring& name) {
    CheckDrawing(drawing, name, &findings);
  });
  ShowMessage(findings.empty() ? kNothingFound : kHeader + findings);
  return PRO_TK_NO_ERROR;
}

}  // namespace qm
