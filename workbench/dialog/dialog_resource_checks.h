// What must agree across a whole dialog resource once every line of it has been read.
#pragma once

#include <string>

#include "workbench/dialog/dialog_resource.h"

namespace wb {

// Throws ResourceError for the first contradiction: names without their labels, selections that
// name nothing, components that lie nowhere, a default button that is none.
void CheckDialogResource(const DialogResource& resource, const std::string& file);

}  // namespace wb
