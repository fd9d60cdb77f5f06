// Notes the name of the current model in a settings file, and a blank one when it could not be had.
#include <windows.h>

#include <cwchar>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProPath file = {};
  if (ProDirectoryCurrentGet(file) != PRO_TK_NO_ERROR) return PRO_TK_GENERAL_ERROR;
  std::wcscat(file, L"\\notes.ini");
  ProMdl model = nullptr;
  ProName name = {};
  if (ProMdlCurrentGet(&model) == PRO_TK_NO_ERROR) ProMdlNameGet(model, name);
  const bool is_written = ::WritePrivateProfileStringW(L"last", L"model", name, file) != FALSE;
  return is_written ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}
