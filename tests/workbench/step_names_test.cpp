// Host names for product names: allowed characters, length, and twins.
#include "workbench/step_names.h"

#include <gtest/gtest.h>

#include "workbench/utf8_text.h"

namespace wb {
namespace {

using Names = std::vector<std::string>;

TEST(HostNames, KeepLettersAndReplaceTheRest) {
  EXPECT_EQ(MakeHostNames({"bolt M6x20", "螺栓（M6）", "a/b.c", "ÄÖ-1_x", "×", "", "\U0001F529"}),
            (Names{"bolt_M6x20", "螺栓_M6_", "a_b_c", "ÄÖ-1_x", "_", "unnamed", "__1"}));
}

TEST(HostNames, TellTwinsApartWithoutRegardToCase) {
  EXPECT_EQ(MakeHostNames({"nut", "NUT", "nut_1", "Nut", "", ""}),
            (Names{"nut", "NUT_1", "nut_1_1", "Nut_2", "unnamed", "unnamed_1"}));
}

TEST(HostNames, StayWithinTheHostsLengthAlsoWithANumber) {
  const std::string chinese = "螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓";
  Names many(1200, std::string(40, 'a'));
  many.push_back(chinese);
  many.push_back(chinese + "x");
  const Names names = MakeHostNames(many);
  EXPECT_EQ(names[0], std::string(31, 'a'));
  EXPECT_EQ(names[1], std::string(29, 'a') + "_1");
  EXPECT_EQ(names[1199], std::string(26, 'a') + "_1199");
  for (const std::string& name : names) EXPECT_LE(WideLength(name), kLongestHostName);
  EXPECT_EQ(names[1201], names[1200].substr(0, 29 * 3) + "_1");
}

}  // namespace
}  // namespace wb
