// Counts as values of parameters, and where those of instances go.
#include "assembly/components/mdl_count_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(ModelCount, IsWrittenInTheTypeOfTheParameter) {
  EXPECT_EQ(CountAs(PRO_PARAM_INTEGER, 12), ParamValue(12));
  EXPECT_EQ(CountAs(PRO_PARAM_DOUBLE, 12), ParamValue(12.0));
  EXPECT_EQ(CountAs(PRO_PARAM_STRING, 12), ParamValue(std::wstring(L"12")));
  for (const auto type : {PRO_PARAM_BOOLEAN, PRO_PARAM_NOTE_ID, PRO_PARAM_VOID}) {
    EXPECT_EQ(CountAs(type, 1), std::nullopt);
  }
}

TEST(ModelCount, OfInstancesGoesIntoTheGenericUnlessTheSettingIsOne) {
  EXPECT_EQ(InstanceCountsBy(L"1"), InstanceCounts::kOwnCells);
  for (const wchar_t* const setting : {L"0", L"", L"2", L"11", L"一", L"yes"}) {
    EXPECT_EQ(InstanceCountsBy(setting), InstanceCounts::kIntoGeneric) << setting;
  }
}

}  // namespace
}  // namespace qm
