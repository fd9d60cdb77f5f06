// The running program, and the install tree that lies beside it.
#include "workbench/plugin/install_tree.h"

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"

namespace wb {
namespace {

constexpr const char* kTreeName = "quillmax-5.1-C3";

}  // namespace

std::filesystem::path ProgramFile() {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
  return path;
}

std::filesystem::path InstallTree(const CommandLine& line) {
  const std::filesystem::path tree =
      line.Has("--install") ? line.Path("--install") : ProgramFile().parent_path() / kTreeName;
  if (std::filesystem::is_directory(tree / "text")) return tree;
  throw UsageError("there is no install tree at " + PathToUtf8(tree) +
                   "; build one, or name it with --install DIR");
}

}  // namespace wb
