// A dense beginning and an even rest.
#include "workbench/checks/fault_sample.h"

#include <algorithm>

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

}  // namespace wb
