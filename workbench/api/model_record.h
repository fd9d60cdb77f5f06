// The record of a model's data, which the host fills and is given back.
#pragma once

#include <string>

#include "workbench/host/call.h"

namespace wb {

void FillRecord(const Call& call, const Model& model, ProMdldata& record);

// What the host finds in such a record.
struct ModelRecordText {
  std::string name;
  std::string extension;
  std::string folder;
};
ModelRecordText ReadRecord(const Call& call, const ProMdldata& record);

}  // namespace wb
