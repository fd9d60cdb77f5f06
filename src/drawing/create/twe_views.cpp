// TweViews: a drawing of the selected or current model with six or twelve standard views.
#include "drawing/create/twe_views.h"

#include <optional>
#include <string>

#include "drawing/create/chosen_model.h"
#include "drawing/create/main_view_orientation.h"
#include "drawing/create/template_drawing.h"
#include "drawing/create/twe_views_rules.h"
#include "drawing/create/twe_views_sheet.h"
#include "frame/dialogs/dialog.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/drawing_window.h"
#include "frame/models/model_name.h"
#include "frame/models/retrieve.h"
#include "frame/settings/config.h"
#include "frame/text/fixed_text.h"
#include "frame/text/letter_case.h"
#include "toolkit/export.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr char kDialog[] = "TweViews";
constexpr wchar_t kExists[] = L"十二视图已存在";
constexpr wchar_t kNoTemplate[] = L"未找到可用模板（qm.drw）";
constexpr wchar_t kExported[] = L"\t已导出到桌面\t";
constexpr char kNotExported[] = "The drawing could not be exported to the desktop";

// Whether the main view is taken as the window shows the model.
bool TakesShownView() {
  constexpr wchar_t kSetting[] = L"TweViewsUseAutoMainView";
  std::wstring value = ReadSetting(kSetting, kValueKey, TextFolderConfigPath(kConfigFile));
  std::erase(value, L' ');
  return EqualIgnoringCase(value, L"1");
}

std::optional<TweViewsWishes> ReadWishes(const DialogView& dialog) {
  const auto direction = dialog.TryRadioValue("DirectionRadio");
  const auto views = dialog.TryRadioValue("ViewsRadio");
  const auto exports = dialog.CheckState("ExportCheckButton");
  if (!direction || !views || !exports) return std::nullopt;
  return TweViewsWishes{*direction, *views, *exports};
}

// Says that it is done only when it is.
void ExportToDesktop(ProDrawing drawing, const std::wstring& name) {
  const auto folder = DesktopFolder();
  ProPath file = {};
  ProError status = PRO_TK_INVALID_DIR;
  if (folder && FillFixedText(*folder + L"\\" + name, file)) {
    status = Pro2dExport(PRO_DWG_FILE, file, drawing, nullptr);
  }
  if (Ok(status)) return ShowMessage(kExported);
  LogFailure(name, "Pro2dExport", status);
  DisplayNote(kNotExported);
}

ProError BuildDrawing(ProMdl model, const TweViewsWishes& wishes) {
  const auto model_name = ModelName(model);
  if (!model_name) return PRO_TK_GENERAL_ERROR;
  const std::wstring name = TweViewsDrawingName(*model_name);
  const Matrix orientation = MainViewOrientation(model, TakesShownView());
  WorkingDirectory directory;
  const NewDrawing made = MakeToolboxDrawing(directory, name, model);
  if (!Ok(made.status)) {
    ShowNoDrawing(made.status, kExists, kNoTemplate);
    return made.status;
  }
  const auto window = DrawingWindow(name);
  const ProError hidden = ProDrawingSheetFormatHide(made.drawing, kAllSheets);
  if (!Ok(hidden)) LogFailure(name, "ProDrawingSheetFormatHide", hidden);
  if (window) MakeCurrent(*window);
  const ProError status = DrawTweViews(made.drawing, model, orientation, wishes);
  if (!Ok(status)) return status;
  int shown_in = -1;
  if (Ok(ProMdlWindowGet(made.drawing, &shown_in)) && shown_in >= 0) ActivateWindow(shown_in);
  if (wishes.exports) ExportToDesktop(made.drawing, name);
  return PRO_TK_NO_ERROR;
}

// The model is chosen again, since the user may have changed what is selected meanwhile.
void Apply(const DialogView& dialog) {
  CommandLog log("TweViews/ApplyBt");
  ProMdl model = ChooseModel(Selectable::kPartsAndAssemblies).model;
  if (model != nullptr) model = WithoutManufacturing(model);
  if (model == nullptr) return log.set_status(PRO_TK_E_NOT_FOUND);
  const auto wishes = ReadWishes(dialog);
  log.set_status(PRO_TK_GENERAL_ERROR);
  if (!wishes) return ShowMessage(kUnreadableField);
  dialog.Exit();
  log.set_status(BuildDrawing(model, *wishes));
}

}  // namespace

ProError TweViews() {
  const ChosenModel chosen = ChooseModel(Selectable::kPartsAndAssemblies);
  if (chosen.refusal != nullptr) ShowMessage(chosen.refusal);
  if (chosen.model == nullptr) return PRO_TK_E_NOT_FOUND;
  const auto model_name = ModelName(chosen.model);
  if (!model_name) return PRO_TK_GENERAL_ERROR;
  const std::wstring name = TweViewsDrawingName(*model_name);
  if (ProMdl drawing = RetrieveIfThere(name, PRO_MDL_DRAWING)) return DisplayDrawing(drawing, name);
  return RunDialog(kDialog, [](const Dialog& dialog) {
    dialog.BindButton<&Apply>("ApplyBt");
    dialog.BindCloseButton();
    dialog.BindClose();
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
