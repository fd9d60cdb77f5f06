// The open and save dialogs are answered by the user of the workbench.
#include <filesystem>
#include <optional>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

#include <cderr.h>
#include <commdlg.h>

namespace wb {
namespace {

// "All files\0*.*\0\0" as "All files|*.*".
std::string FilterText(const wchar_t* filter) {
  std::vector<std::string> pieces;
  while (filter != nullptr && *filter != L'\0') {
    pieces.push_back(FromWide(filter));
    filter += wcslen(filter) + 1;
  }
  return Join("|", pieces);
}

FileRequest RequestOf(const char* function, const OPENFILENAMEW& dialog) {
  return {function,
          Utf8(dialog.lpstrTitle),
          FilterText(dialog.lpstrFilter),
          Utf8(dialog.lpstrInitialDir),
          Utf8(dialog.lpstrDefExt),
          static_cast<unsigned>(dialog.Flags)};
}

// Puts the user's choice where the caller wants it, with the default extension where it has none.
void FillIn(const Call& call, OPENFILENAMEW& dialog, const std::string& choice) {
  std::filesystem::path path = PathFromUtf8(choice);
  const std::string extension = Utf8(dialog.lpstrDefExt);
  if (!path.has_extension() && !extension.empty()) path += PathFromUtf8("." + extension);
  const std::wstring text = ToWide(PathToUtf8(path));
  if (text.size() >= dialog.nMaxFile) {
    call.Fail("a buffer of " + std::to_string(dialog.nMaxFile) + " characters for a file of " +
              std::to_string(text.size()));
  }
  call.CopyText(dialog.lpstrFile, dialog.nMaxFile, PathToUtf8(path));
  dialog.nFileOffset = static_cast<WORD>(text.find_last_of(L"\\/") + 1);
  const size_t dot = text.rfind(L'.');
  dialog.nFileExtension =
      dot == std::wstring::npos || dot < dialog.nFileOffset ? WORD{0} : static_cast<WORD>(dot + 1);
}

std::optional<std::string> Choice(const Call& call, const char* function,
                                  const OPENFILENAMEW& dialog) {
  if (dialog.lStructSize != sizeof(OPENFILENAMEW)) call.Fail("wrong structure size");
  if (dialog.lpstrFile == nullptr) call.Fail("null file buffer");
  const FileRequest request = RequestOf(function, dialog);
  call.host.events.Add(request);
  return call.host.user == nullptr ? std::nullopt : call.host.user->ChooseFile(request);
}

// The dialogs themselves answer a failure and a cancelled choice alike.
BOOL AskForFile(const char* function, OPENFILENAMEW* dialog) {
  TheHost().windows.dialog_error = CDERR_DIALOGFAILURE;
  const std::string arguments = dialog == nullptr ? "null" : DescribeArgument(dialog->lpstrTitle);
  return WindowsCrossing(function, arguments, BOOL{FALSE}, [&](const Call& call) {
    OPENFILENAMEW& place = call.Place(dialog, "dialog structure");
    const std::optional<std::string> choice = Choice(call, function, place);
    call.host.windows.dialog_error = 0;
    if (!choice) return BOOL{FALSE};
    FillIn(call, place, *choice);
    return BOOL{TRUE};
  });
}

BOOL WINAPI HookGetOpenFileNameW(LPOPENFILENAMEW dialog) {
  return AskForFile("GetOpenFileNameW", dialog);
}

BOOL WINAPI HookGetSaveFileNameW(LPOPENFILENAMEW dialog) {
  return AskForFile("GetSaveFileNameW", dialog);
}

DWORD WINAPI HookCommDlgExtendedError() {
  return TheHost().windows.dialog_error;
}

}  // namespace

HookRows FileDialogHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(GetOpenFileNameW)>("GetOpenFileNameW", &HookGetOpenFileNameW),
      HookRow<decltype(GetSaveFileNameW)>("GetSaveFileNameW", &HookGetSaveFileNameW),
      HookRow<decltype(CommDlgExtendedError)>("CommDlgExtendedError", &HookCommDlgExtendedError,
                                              false),
  };
  return kRows;
}

}  // namespace wb
