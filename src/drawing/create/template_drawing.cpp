// Makes drawings of templates.
#include "drawing/create/template_drawing.h"

#include <algorithm>

#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/settings/config.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr wchar_t kTemplateFolder[] = L"tp";
constexpr wchar_t kTemplate[] = L"qm.drw";

}  // namespace

NewDrawing MakeDrawing(const std::wstring& name, ProMdl model, std::wstring template_name) {
  NewDrawing made;
  auto host_name = HostName::From(name);
  ProMdldata data = {};
  if (!host_name || !Ok(ProMdlDataGet(model, &data))) return made;
  if (std::ranges::all_of(data.texts, [](wchar_t c) { return c == L'\0'; })) {
    LogEvent("ProMdlDataGet answered success and gave no record of " + ToUtf8(name));
    return made;
  }
  ProDwgcreateErrs errors = nullptr;
  made.status = ProDrawingFromTmpltCreate(host_name->name, template_name.data(), &data,
                                          PRO_DWGCREATE_DISPLAY_DRAWING, &made.drawing, &errors);
  if (errors != nullptr) ProDwgcreateErrsFree(&errors);
  if (Ok(made.status) && made.drawing == nullptr) made.status = PRO_TK_GENERAL_ERROR;
  if (!Ok(made.status)) {
    LogEvent("ProDrawingFromTmpltCreate of " + ToUtf8(name) + " with " + ToUtf8(template_name) +
             " answered " + StatusName(made.status));
  }
  return made;
}

NewDrawing MakeToolboxDrawing(WorkingDirectory& directory, const std::wstring& name, ProMdl model) {
  // A file of that name in the user's own folder is another template.
  if (!Ok(directory.Enter(InstalledPath(kTemplateFolder)))) return {PRO_TK_E_NOT_FOUND, nullptr};
  const NewDrawing made = MakeDrawing(name, model, kTemplate);
  directory.Return();
  return made;
}

void ShowNoDrawing(ProError status, const wchar_t* exists, const wchar_t* no_template) {
  switch (status) {
    case PRO_TK_E_FOUND:
      return ShowShortMessage(exists);
    case PRO_TK_E_NOT_FOUND:
      return ShowShortMessage(no_template);
    case PRO_TK_DWGCREATE_ERRORS:
    case PRO_TK_NO_PERMISSION:
      return ShowShortMessage(FromAnsi(StatusName(status)));
    default:
      return;
  }
}

}  // namespace qm
