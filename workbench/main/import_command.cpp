// `workbench import`: a STEP file into a folder of models.
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/main/subcommands.h"
#include "workbench/step/import.h"

namespace wb {
namespace {

#if defined(_WIN32)
constexpr const char* kProgram = "workbench";
#else
constexpr const char* kProgram = "tools/workbench.sh";
#endif

void PrintNextStep(const ImportedModels& imported, const std::filesystem::path& folder) {
  std::printf("next: save these lines as try.qms in this folder, then %s run try.qms\n", kProgram);
  for (const std::string& line : NextScript(imported, folder)) std::printf("  %s\n", line.c_str());
}

}  // namespace

int ImportCommand(const CommandArguments& arguments) {
  const CommandLine line(arguments, {"--force"}, {});
  if (line.words().size() != 2) throw UsageError("import wants a STEP file and a folder");
  const std::filesystem::path folder = PathFromUtf8(line.words()[1]);
  const ImportedModels imported = ReadStepModels(PathFromUtf8(line.words()[0]));
  WriteModels(imported, folder, line.Has("--force"));
  std::printf("%s", ModelTable(imported).c_str());
  for (const std::string& note : imported.notes) std::printf("note: %s\n", note.c_str());
  for (const ModelName& top : imported.tops) std::printf("top: %s\n", top.Text().c_str());
  std::printf("%zu models in %s\n", imported.models.size(), PathToUtf8(folder).c_str());
  std::printf("length unit of the file: %s; models are in millimetres\n",
              imported.length_unit.c_str());
  PrintNextStep(imported, folder);
  return 0;
}

}  // namespace wb
