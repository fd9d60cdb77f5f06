// Keeps the record of crossings.
#include "workbench/trace.h"

namespace wb {

void Trace::Leave(long call, const char* function, std::string arguments, int status) {
  --depth_;
  lines_.push_back({call, depth_, function, std::move(arguments), status});
}

long Trace::Count(const std::string& function) const {
  long sum = 0;
  for (const auto& [name, count] : counts_) {
    if (function == name) sum += count;
  }
  return sum;
}

std::unordered_map<std::string, long> Trace::Counts() const {
  std::unordered_map<std::string, long> sums;
  for (const auto& [name, count] : counts_) sums[name] += count;
  return sums;
}

void Trace::Restart() {
  calls_ = 0;
  depth_ = 0;
  last_ = "none";
  counts_.clear();
  lines_.clear();
}

}  // namespace wb
