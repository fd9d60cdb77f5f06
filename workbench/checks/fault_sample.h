// Which of many faults are tried when trying them all would take too long.
#pragma once

#include <vector>

namespace wb {

// Places from 1 to `count`: the first `dense` of them, and of the others every k-th, so that about
// `sparse` more come together; the last is among them.
std::vector<long> SampledPlaces(long count, long dense, long sparse);

}  // namespace wb
