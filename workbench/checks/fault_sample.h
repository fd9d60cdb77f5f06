// Which of many faults are tried when trying them all would take too long.
#pragma once

#include <string>
#include <vector>

namespace wb {

// Places from 1 to `count`: the first `dense` of them, and of the others every k-th, so that about
// `sparse` more come together; the last is among them.
std::vector<long> SampledPlaces(long count, long dense, long sparse);

// Of calls named one by one: of each function the first two and the last, and of all calls the
// places above. In rising order, each once.
std::vector<long> SampledCalls(const std::vector<std::string>& functions, long dense, long sparse);

}  // namespace wb
