// Which calls a fault on order strikes.
#include <gtest/gtest.h>

#include "workbench/checks/faults.h"

namespace wb {
namespace {

// "x" for each struck call, "." for the others.
std::string Struck(Faults& faults, const std::vector<const char*>& functions) {
  std::string struck;
  for (const char* function : functions) struck += faults.Strike(function) != nullptr ? 'x' : '.';
  return struck;
}

TEST(Faults, APairStrikesItsTwoCallsAndNoOther) {
  Faults faults;
  faults.Order({.function = "A", .nth = 1, .second_nth = 3});
  EXPECT_EQ(Struck(faults, {"A", "B", "A", "B", "A", "A"}), "x...x.");
  EXPECT_TRUE(faults.HasStruck("A"));
  EXPECT_FALSE(faults.HasStruck("B"));
  faults.Clear();
  EXPECT_FALSE(faults.HasStruck("A"));
}

TEST(Faults, ALastingOneMaySpareWhatTellsOfItUnlessThatIsTheFirst) {
  Faults faults;
  faults.Order({.function = "", .nth = 2, .from_then_on = true, .spares_telling = true});
  EXPECT_EQ(Struck(faults, {"A", "A", "MessageBoxW", "A", "CreateFileW"}), ".x.xx");
  EXPECT_FALSE(faults.HasStruckTelling());
  const bool is_of_run_log = true;
  EXPECT_EQ(faults.Strike("CreateFileW", is_of_run_log), nullptr);
  faults.Order({.function = "", .nth = 1, .from_then_on = true, .spares_telling = true});
  EXPECT_EQ(Struck(faults, {"MessageBoxW", "MessageBoxW", "A"}), "x.x");
  EXPECT_TRUE(faults.HasStruckTelling());
  faults.Order({.function = "", .nth = 1});
  EXPECT_NE(faults.Strike("WriteFile", is_of_run_log), nullptr);
  EXPECT_TRUE(faults.HasStruckTelling());
}

}  // namespace
}  // namespace wb
