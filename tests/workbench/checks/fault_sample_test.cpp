// Which faults a sample tries.
#include "workbench/checks/fault_sample.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

using Places = std::vector<long>;

TEST(SampledCalls, TakeEveryFunctionHoweverManyCallsOthersMake) {
  std::vector<std::string> calls(100, "ProMdlNameGet");
  calls[40] = calls[43] = calls[47] = calls[49] = "ProMdlSave";
  EXPECT_EQ(SampledCalls(calls, 3, 2), (Places{1, 2, 3, 41, 44, 50, 51, 99, 100}));
  EXPECT_EQ(SampledCalls({}, 3, 2), Places());
}

TEST(SampledPlaces, AreDenseAtTheBeginningEvenLaterAndEndWithTheLast) {
  EXPECT_EQ(SampledPlaces(20, 4, 4), (Places{1, 2, 3, 4, 8, 12, 16, 20}));
  EXPECT_EQ(SampledPlaces(3, 64, 24), (Places{1, 2, 3}));
  EXPECT_EQ(SampledPlaces(66, 64, 24).back(), 66);
  EXPECT_EQ(SampledPlaces(7, 0, 2), (Places{3, 6, 7}));
  EXPECT_EQ(SampledPlaces(1, 0, 2), (Places{1}));
  EXPECT_EQ(SampledPlaces(0, 64, 24), Places());
  EXPECT_EQ(SampledPlaces(1000, 1000, 24).size(), 1000u);
}

}  // namespace
}  // namespace wb
