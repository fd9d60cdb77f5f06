// `workbench import`: a STEP file into a folder of models.
#include <cstdio>

#include "workbench/base/text.h"
#include "workbench/main/subcommands.h"
#include "workbench/step/import.h"

namespace wb {

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
  return 0;
}

}  // namespace wb
