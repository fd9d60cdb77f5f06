// QmNewDrw: a drawing named as the model, from the user's own template for a kind of model and a
// size of sheet. One that is there already is shown.
#include "drawing/create/new_drw.h"

#include <optional>
#include <string>

#include "drawing/create/chosen_model.h"
#include "drawing/create/new_drw_rules.h"
#include "drawing/create/template_drawing.h"
#include "frame/dialogs/dialog.h"
#include "frame/folders/working_directory.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/drawing_window.h"
#include "frame/models/model_name.h"
#include "frame/models/retrieve.h"
#include "frame/settings/config.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kDialog[] = "QmNewDrw";
constexpr char kKindRadio[] = "RadioType";
constexpr char kSizeRadio[] = "RadioSize";
constexpr wchar_t kNotConfigured[] = L"当前所选模板未配置，请在 羽石设置 功能中配置后再试。";
constexpr wchar_t kNotRetrieved[] = L"当前模板无法检索，请检查模板设置是否正确。";

ProError ShowAsCurrent(const std::wstring& name) {
  const auto window = DrawingWindow(name);
  return window ? MakeCurrent(*window) : PRO_TK_GENERAL_ERROR;
}

std::wstring TemplatePath(const std::string& size, const std::string& kind) {
  const std::wstring section = TemplateSection(size, kind);
  return section.empty() ? section
                         : ReadSetting(section.c_str(), kPathKey, ConfigPath(kConfigFile));
}

ProError MakeFromTemplate(WorkingDirectory& directory, ProMdl model, const std::wstring& name,
                          const std::wstring& path) {
  // Deliberately a file's path: the host refuses it, and the working directory stays.
  directory.Enter(ConfigPath(kConfigFile));
  if (RetrieveModel(path, PRO_MDL_DRAWING) == nullptr) {
    ShowMessage(kNotRetrieved + std::wstring(L"\n") + path);
    return PRO_TK_E_NOT_FOUND;
  }
  const NewDrawing made = MakeDrawing(name, model, path);
  directory.Return();
  return Ok(made.status) ? ShowAsCurrent(name) : made.status;
}

// The dialog stays open. Deliberately the current model, whatever is selected.
ProError Create(const DialogView& dialog) {
  WorkingDirectory directory;
  const auto size = dialog.TryRadioValue(kSizeRadio);
  const auto kind = dialog.TryRadioValue(kKindRadio);
  ProMdl model = nullptr;
  const ProError status = ProMdlCurrentGet(&model);
  if (!Ok(status) || model == nullptr) return PRO_TK_E_NOT_FOUND;
  const auto name = ModelName(model);
  if (!name) return PRO_TK_GENERAL_ERROR;
  if (!size || !kind) {
    ShowMessage(kUnreadableField);
    return PRO_TK_GENERAL_ERROR;
  }
  const std::wstring path = TemplatePath(*size, *kind);
  if (path.empty()) {
    ShowMessage(kNotConfigured);
    return PRO_TK_E_NOT_FOUND;
  }
  return MakeFromTemplate(directory, model, *name, path);
}

void CreateDrawing(const DialogView& dialog) {
  CommandLog log("QmNewDrw/QmCreateDrw");
  log.set_status(Create(dialog));
}

// Button of the model's kind; nothing for other kinds than these two. A sheet-metal part is a part.
std::optional<std::string> KindButton(ProMdl model) {
  ProMdlType type = PRO_MDL_UNUSED;
  if (!Ok(ProMdlTypeGet(model, &type))) return std::nullopt;
  if (type == PRO_MDL_ASSEMBLY) return "asm";
  return type == PRO_MDL_PART ? std::optional<std::string>("prt") : std::nullopt;
}

}  // namespace

ProError QmNewDrw() {
  ProMdl current = nullptr;
  if (!Ok(ProMdlCurrentGet(&current)) || current == nullptr) return PRO_TK_E_NOT_FOUND;
  ProMdl model = ChooseModelToDraw();
  if (model == nullptr) return PRO_TK_E_NOT_FOUND;
  const auto name = ModelName(model);
  if (!name) return PRO_TK_GENERAL_ERROR;
  // A current drawing finds itself here and is brought up: no dialog opens on a drawing.
  if (RetrieveIfThere(*name, PRO_MDL_DRAWING) != nullptr) return ShowAsCurrent(*name);
  return RunDialog(kDialog, [model](const Dialog& dialog) {
    dialog.BindButton<&CreateDrawing>("QmCreateDrw");
    dialog.BindClose();
    if (const auto kind = KindButton(model)) dialog.SetRadioValue(kKindRadio, *kind);
    dialog.SetRadioValue(kSizeRadio, "A3");
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
