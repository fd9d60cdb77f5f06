// How copies and new components are named.
#include "assembly/create/clone_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(CloneRules, NumbersStandBehindTheBase) {
  const NewNaming parts = NamingBelow(L"PUMP_00", PRO_MDL_PART);
  const NewNaming assemblies = NamingBelow(L"PUMP_00", PRO_MDL_ASSEMBLY);
  const NewNaming copies = NamingAfterComponent(L"Valve_00");
  for (const int number : {1, 9, 10, 99, 100}) {
    const std::wstring digits = std::to_wstring(number);
    EXPECT_EQ(NumberedName(parts, number), L"PUMP-" + digits);
    EXPECT_EQ(NumberedName(assemblies, number), (number < 10 ? L"PUMP_0" : L"PUMP_") + digits);
    EXPECT_EQ(NumberedName(copies, number), L"Valve_00-" + digits);
  }
  EXPECT_EQ(parts.probed_as, PRO_MDL_PART);
  EXPECT_EQ(assemblies.probed_as, PRO_MDL_ASSEMBLY);
}

TEST(CloneRules, DeliberatelyACopyIsProbedAsAPartWhateverItIs) {
  EXPECT_EQ(NamingAfterComponent(L"SUB").probed_as, PRO_MDL_PART);
}

TEST(CloneRules, OnlyTheEndOfATopAssemblyIsCutOff) {
  const auto base = [](const wchar_t* name) { return NamingBelow(name, PRO_MDL_PART).base; };
  EXPECT_EQ(base(L"M_00"), L"M");
  EXPECT_EQ(base(L"_00"), L"");
  EXPECT_EQ(base(L"M_00_00"), L"M_00");
  for (const wchar_t* kept : {L"M", L"M_0", L"X_000", L"M_01", L"M00", L"M_00a", L""}) {
    EXPECT_EQ(base(kept), kept);
  }
}

}  // namespace
}  // namespace qm
