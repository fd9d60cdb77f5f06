// QmFrmReplace: puts a drawing format of the user's choice on every sheet of every drawing in the
// working directory and saves the drawings.
#include "drawing/change/frm_replace.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "drawing/change/sheet_format.h"
#include "frame/dialogs/dialog.h"
#include "frame/dialogs/file_choice.h"
#include "frame/folders/folder_drawings.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/models/retrieve.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr char kDialog[] = "QmFrmReplace";
constexpr wchar_t kDone[] = L"当前工作目录中工程图图框已批量替换完毕！";

// Where the host finds the format by its name. A file that is there already stays and is the one
// that is used.
void CopyFormat(const std::wstring& chosen, const std::wstring& name, const std::wstring& formats,
                const std::wstring& folder) {
  const std::wstring place = formats.empty() ? folder : formats + L"\\";
  const std::wstring target = place + name + L".frm";
  if (place.empty())
    return LogFailure("the format is not copied: the working directory is unknown");
  if (::CopyFileW(chosen.c_str(), target.c_str(), TRUE)) return;
  const DWORD error = ::GetLastError();
  const std::string line = "the format stays as it is at " + ToUtf8(target) + ": Windows' error " +
                           std::to_string(error);
  error == ERROR_FILE_EXISTS ? LogEvent(line) : LogFailure(line);
}

// The format's model; null when the host does not find it. Nothing when the user cancels.
std::optional<ProMdl> ChosenFormat(const std::wstring& folder) {
  const std::wstring formats = FormatFolder();
  const auto chosen = PickDrawingFile(L"请选择需要替换的新图框", L"*.frm", formats);
  if (!chosen) return std::nullopt;
  const std::wstring name = NameInPath(*chosen);
  if (name.empty()) return std::nullopt;
  CopyFormat(*chosen, name, formats, folder);
  // Deliberately without it, too: the drawings then lose their tables and are saved, which the run
  // log and the note at the end tell.
  return RetrieveModel(name, PRO_MDL_DWGFORM);
}

ProError Replace() {
  const std::vector<std::wstring> names = DrawingsOfFolder();
  if (names.empty()) return PRO_TK_E_NOT_FOUND;
  const std::wstring folder = CurrentFolder().value_or(std::wstring());
  const auto format = ChosenFormat(folder);
  if (!format) return PRO_TK_USER_ABORT;
  auto without = static_cast<long long>(names.size());
  ForEachDrawing(names, [&](ProDrawing drawing, const std::wstring& name) {
    if (ReplaceFormats(drawing, {folder, name}, *format)) --without;
  });
  if (without > 0) {
    LogLeftOutCount(without);
    DisplayNote("Drawings without the new format: %0w", std::to_wstring(without).c_str());
  }
  ShowMessage(kDone);
  return PRO_TK_NO_ERROR;
}

void Act(const DialogView&) {
  CommandLog log("QmFrmReplace/QmFrmReplaceAct");
  log.set_status(Replace());
}

}  // namespace

ProError QmFrmReplace() {
  return RunDialog(kDialog, [](const Dialog& dialog) {
    dialog.BindButton<&Act>("QmFrmReplaceAct");
    dialog.BindClose();
    return PRO_TK_NO_ERROR;
  });
}

}  // namespace qm
