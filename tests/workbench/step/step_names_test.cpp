// Host names for product names: allowed characters, length, and twins.
#include "workbench/step/step_names.h"

#include <gtest/gtest.h>

#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

using Names = std::vector<std::string>;

// Of parts.
Names HostNames(const Names& products) {
  std::vector<ProductName> parts;
  for (const std::string& product : products) parts.push_back({product, false});
  Names names;
  for (const HostName& name : MakeHostNames(parts)) names.push_back(name.name);
  return names;
}

TEST(HostNames, KeepLettersAndReplaceTheRest) {
  EXPECT_EQ(HostNames({"bolt M6x20", "螺栓（M6）", "a/b.c", "ÄÖ-1_x", "×", "", "\U0001F529"}),
            (Names{"bolt_M6x20", "螺栓_M6_", "a_b_c", "ÄÖ-1_x", "_", "unnamed", "__1"}));
}

TEST(HostNames, TellTwinsApartWithoutRegardToCase) {
  EXPECT_EQ(HostNames({"nut", "NUT", "nut_1", "Nut", "", ""}),
            (Names{"nut", "NUT_1", "nut_1_1", "Nut_2", "unnamed", "unnamed_1"}));
  // In any script, as the file system does.
  EXPECT_EQ(HostNames({"Φ20轴", "φ20轴", "Ａ板", "ａ板", "ЖУК", "жук", "Ärm", "ärm"}),
            (Names{"Φ20轴", "φ20轴_1", "Ａ板", "ａ板_1", "ЖУК", "жук_1", "Ärm", "ärm_1"}));
}

TEST(HostNames, APartAndAnAssemblyMayShareOne) {
  const std::vector<HostName> names =
      MakeHostNames({{"shell", false}, {"SHELL", true}, {"shell", true}, {"shell", false}});
  EXPECT_EQ(names[1].name, "SHELL");
  EXPECT_FALSE(names[1].numbered);
  EXPECT_EQ(names[2].name, "shell_1");
  EXPECT_TRUE(names[2].numbered);
  EXPECT_EQ(names[3].name, "shell_1");
}

TEST(HostNames, AreNoDevices) {
  EXPECT_EQ(HostNames({"CON", "aux", "Com1", "lpt9", "com0", "console", "con_"}),
            (Names{"CON_", "aux_", "Com1_", "lpt9_", "com0", "console", "con__1"}));
}

TEST(HostNames, StayWithinTheHostsLengthAlsoWithANumber) {
  const std::string chinese = "螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓螺栓";
  Names many(1200, std::string(40, 'a'));
  many.push_back(chinese);
  many.push_back(chinese + "x");
  const Names names = HostNames(many);
  EXPECT_EQ(names[0], std::string(31, 'a'));
  EXPECT_EQ(names[1], std::string(29, 'a') + "_1");
  EXPECT_EQ(names[1199], std::string(26, 'a') + "_1199");
  for (const std::string& name : names) EXPECT_LE(WideLength(name), kLongestHostName);
  EXPECT_EQ(names[1201], names[1200].substr(0, 29 * 3) + "_1");
}

}  // namespace
}  // namespace wb
