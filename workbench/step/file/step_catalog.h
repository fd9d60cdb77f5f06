// Finds the instances of a STEP file by what they are.
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "workbench/step/file/step_file.h"

namespace wb {

// Instances by their entity names, in the order of the file.
class StepCatalog {
 public:
  explicit StepCatalog(const StepFile& file);
  // Instances that are (also) of type `entity`.
  const std::vector<const StepRecord*>& Of(std::string_view entity) const;

 private:
  std::unordered_map<std::string_view, std::vector<const StepRecord*>> by_name_;
};

}  // namespace wb
