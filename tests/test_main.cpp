// Runs the tests and closes with the plain line "N passed, N failed": under Wine the exit code
// alone is not to be trusted.
#include <gtest/gtest.h>

#include <cstdio>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  const auto* unit = ::testing::UnitTest::GetInstance();
  std::printf("%d passed, %d failed\n", unit->successful_test_count(), unit->failed_test_count());
  std::fflush(stdout);
  return result;
}
