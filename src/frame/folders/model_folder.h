// The folder that a model's file lies in, or is to be backed up to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/model.h"

namespace qm {

// As the host's record of the model says it; where the record has an order that is not known, of
// the file that the model came from. No value, after a line in the run log, when neither tells.
std::optional<std::wstring> FolderOf(ProMdl model);

// Makes `folder` the folder in the host's record of the model `name`. False when the record has an
// order that is not known, or no room for the folder.
bool PointToFolder(std::wstring_view name, std::wstring_view folder, ProMdldata* record);

}  // namespace qm
