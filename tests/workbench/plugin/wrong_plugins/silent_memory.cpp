// Goes to another folder, and says nothing when it could not for want of memory.
#include <cstdlib>
#include <cstring>

#include "tests/workbench/plugin/wrong_plugins/wrong_plugin.h"

int Wrong() {
  constexpr wchar_t kFolder[] = L"elsewhere";
  auto* const path = static_cast<wchar_t*>(std::malloc(sizeof(ProPath)));
  if (path == nullptr) return 0;
  std::memcpy(path, kFolder, sizeof(kFolder));
  const int status = ProDirectoryChange(path);
  std::free(path);
  return status;
}
