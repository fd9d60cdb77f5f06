// Leaves the working directory changed.
#include <wchar.h>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  ProPath folder = {};
  ProDirectoryCurrentGet(folder);
  wcscat(folder, L"text");
  return ProDirectoryChange(folder);
}
