// Which label belongs to which field: resources say only where both lie.
#pragma once

#include <string>
#include <unordered_map>

#include "workbench/dialog/dialog_resource.h"

namespace wb {

// By the field's name the name of the label before it in its row, or else of the one above it. Only
// fields that have no label of their own are in it.
using Captions = std::unordered_map<std::string, std::string>;
Captions CaptionsOf(const DialogResource& resource);

}  // namespace wb
