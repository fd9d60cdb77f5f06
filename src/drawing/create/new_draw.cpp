// NewDraw: a drawing of the selected or current model, named as the model, of the toolbox's own
// template and with a drawing format that the user picks. One that is there already is shown.
#include "drawing/create/new_draw.h"

#include <string>

#include "drawing/create/chosen_model.h"
#include "drawing/create/template_drawing.h"
#include "frame/dialogs/file_choice.h"
#include "frame/folders/folder_drawings.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/drawing_window.h"
#include "frame/models/model_name.h"
#include "frame/models/retrieve.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// The host's own words for the two failures that it explains as such.
constexpr wchar_t kExists[] = L"PRO_TK_E_FOUND";
constexpr wchar_t kNoTemplate[] = L"PRO_TK_E_NOT_FOUND";

// A drawing without its format is a drawing all the same: what fails here is only logged.
void PutFormat(ProDrawing drawing, ProMdl model, const std::wstring& format_name) {
  if (format_name.empty()) return;
  ProMdl format = RetrieveModel(format_name, PRO_MDL_DWGFORM);
  if (format == nullptr) return LogFailure("the drawing stays without its format");
  const ProError status = ProDrawingFormatAdd(drawing, kFirstSheet, model, format, kFirstSheet);
  if (!Ok(status)) LogFailure(drawing, "ProDrawingFormatAdd", status);
}

ProError MakeWithFormat(WorkingDirectory& directory, ProMdl model, const std::wstring& name) {
  const auto format_path = PickDrawingFile(L"请选择工程图模板", L"*.frm");
  if (!format_path) return PRO_TK_USER_ABORT;
  const std::wstring format_name = NameInPath(*format_path);
  const NewDrawing made = MakeToolboxDrawing(directory, name, model);
  if (!Ok(made.status)) {
    ShowNoDrawing(made.status, kExists, kNoTemplate);
    return made.status;
  }
  if (const auto window = DrawingWindow(name)) MakeCurrent(*window);
  PutFormat(made.drawing, model, format_name);
  return PRO_TK_NO_ERROR;
}

}  // namespace

ProError NewDraw() {
  WorkingDirectory directory;
  ProMdl model = ChooseModelToDraw();
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  const auto name = ModelName(model);
  if (!name) return PRO_TK_GENERAL_ERROR;
  if (ProMdl drawing = RetrieveIfThere(*name, PRO_MDL_DRAWING))
    return DisplayDrawing(drawing, *name);
  return MakeWithFormat(directory, model, *name);
}

}  // namespace qm
