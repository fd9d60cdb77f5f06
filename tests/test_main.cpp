// Runs the tests and closes with the plain line "N passed, N failed": under Wine the exit code
// alone is not to be trusted.
#include <gtest/gtest.h>

#include <cstdio>

#if defined(__SANITIZE_ADDRESS__)
// newlocale of the C library never frees the list of folders that it makes of LOCPATH (some 40
// bytes, once). Its stack ends at the library's list of words, whose name alone is known.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:__argz_add_sep\n";
}
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}
#endif

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const int result = RUN_ALL_TESTS();
  const auto* unit = ::testing::UnitTest::GetInstance();
  std::printf("%d passed, %d failed\n", unit->successful_test_count(), unit->failed_test_count());
  std::fflush(stdout);
  return result;
}
