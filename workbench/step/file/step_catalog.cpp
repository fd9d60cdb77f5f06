// One list of instances for each entity name.
#include "workbench/step/file/step_catalog.h"

#include <algorithm>

namespace wb {

StepCatalog::StepCatalog(const StepFile& file) {
  std::vector<std::vector<std::vector<const StepRecord*>*>> lists;  // by type
  for (const StepType& type : file.types()) {
    lists.emplace_back();
    for (const std::string& name : type.names) lists.back().push_back(&by_name_[name]);
  }
  for (const StepRecord& record : file.records()) {
    for (auto* list : lists[record.type]) list->push_back(&record);
  }
  for (auto& [name, list] : by_name_) {
    const auto earlier = [](const auto* a, const auto* b) { return a->offset < b->offset; };
    if (!std::is_sorted(list.begin(), list.end(), earlier)) {
      std::sort(list.begin(), list.end(), earlier);
    }
  }
}

const std::vector<const StepRecord*>& StepCatalog::Of(std::string_view entity) const {
  static const std::vector<const StepRecord*> kNone;
  const auto found = by_name_.find(entity);
  return found == by_name_.end() ? kNone : found->second;
}

}  // namespace wb
