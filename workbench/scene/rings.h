// Sorts what must come after each other, where it may do so in rings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace wb {

struct Following {
  std::uint32_t earlier;
  std::uint32_t later;
};

// The places below `count` in an order that keeps all followings, those that follow each other in a
// ring together as one set.
std::vector<std::vector<std::uint32_t>> RingsInOrder(std::size_t count,
                                                     const std::vector<Following>& followings);

}  // namespace wb
