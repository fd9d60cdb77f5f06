// Keeps the record of crossings.
#include "workbench/checks/trace.h"

namespace wb {

void Trace::Leave(long call, const char* function, std::string arguments, int status) {
  --depth_;
  lines_.push_back({call, depth_, function, std::move(arguments), status});
}

long Trace::Count(const std::string& function) const {
  long sum = 0;
  for (const auto& [name, tally] : tallies_) {
    if (function == name) sum += tally.count;
  }
  return sum;
}

long Trace::HostCalls() const {
  long sum = 0;
  for (const auto& [name, tally] : tallies_) {
    if (std::string_view(name).starts_with("Pro")) sum += tally.count;
  }
  return sum;
}

Trace::FirstCall Trace::First(const std::string& function) const {
  FirstCall first;
  for (const auto& [name, tally] : tallies_) {
    if (function == name && (first.call == 0 || tally.first.call < first.call)) first = tally.first;
  }
  return first;
}

std::unordered_map<std::string, long> Trace::Counts() const {
  std::unordered_map<std::string, long> sums;
  for (const auto& [name, tally] : tallies_) sums[name] += tally.count;
  return sums;
}

void Trace::Restart() {
  calls_ = 0;
  depth_ = 0;
  last_ = "none";
  tallies_.clear();
  lines_.clear();
}

}  // namespace wb
