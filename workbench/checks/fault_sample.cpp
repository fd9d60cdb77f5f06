// A dense beginning and an even rest.
#include "workbench/checks/fault_sample.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace wb {

std::vector<long> SampledPlaces(long count, long dense, long sparse) {
  std::vector<long> places;
  long place = 1;
  for (; place <= std::min(count, dense); ++place) places.push_back(place);
  if (place > count || sparse <= 0) return places;
  const long step = std::max(1L, (count - dense) / sparse);
  for (place += step - 1; place < count; place += step) places.push_back(place);
  places.push_back(count);
  return places;
}

std::vector<long> SampledCalls(const std::vector<std::string>& functions, long dense, long sparse) {
  const long count = static_cast<long>(functions.size());
  const std::vector<long> spread = SampledPlaces(count, dense, sparse);
  std::set<long> places(spread.begin(), spread.end());
  std::unordered_map<std::string, int> seen;
  std::unordered_map<std::string, long> last;
  for (long call = 1; call <= count; ++call) {
    const std::string& function = functions[static_cast<size_t>(call - 1)];
    if (++seen[function] <= 2) places.insert(call);
    last[function] = call;
  }
  for (const auto& [function, call] : last) places.insert(call);
  return {places.begin(), places.end()};
}

}  // namespace wb
