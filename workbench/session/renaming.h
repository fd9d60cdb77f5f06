// What a model's new name means for its files and for the models that use it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "workbench/session/model.h"

namespace wb {

// Names that the host takes for a new model: 1 to 31 characters, letters of any script, digits, "_"
// and, but for the first one, "-".
bool IsLegalModelName(std::string_view name);

// Whether a file of the model, of whatever version, lies in the folder.
bool HasModelFile(const std::filesystem::path& folder, const ModelName& name);

// Every version in the folder gets the new name, in its file's name and inside it; one that is no
// model file only moves. Throws ModelFileError.
void RenameModelFiles(const std::filesystem::path& folder, const ModelName& before,
                      const ModelName& after);

// Links of `user` to the renamed model, and what else it keeps by that name. False: it has none.
bool TakeNewName(Model& user, const ModelName& before, Model& renamed);

}  // namespace wb
