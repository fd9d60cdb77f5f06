// Other files that a STEP file refers to: parts that were exported separately, drawings, texts.
#pragma once

#include <string>
#include <vector>

#include "workbench/step/file/step_catalog.h"

namespace wb {

struct StepDocumentUse {
  const StepRecord* item;  // what refers to the file: a definition, a shape or the document itself
  std::string place;       // name or path of the file, UTF-8
};

// Every reference once, in the order of the file. Follows the document that is a product of its
// own to the file it is kept in.
std::vector<StepDocumentUse> ReadStepDocumentUses(const StepFile& file, const StepCatalog& catalog);

}  // namespace wb
