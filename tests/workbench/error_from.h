// What a call complains of.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace wb {

// Empty when it does not.
template <typename Call>
std::string ErrorFrom(const Call& call) {
  try {
    call();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return {};
}

// It begins with its place, such as "pump.stp:7: ", and tells a reason, of which `reason` is a
// part.
inline void ExpectError(const std::string& error, const std::string& place,
                        const std::string& reason) {
  EXPECT_EQ(error.find(place), 0u) << place << reason << "\n" << error;
  EXPECT_NE(error.find(reason), std::string::npos) << place << reason << "\n" << error;
}

}  // namespace wb
