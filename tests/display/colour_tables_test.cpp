// The shipped colour tables: 217 colours round the hues, 201 of which any two differ visibly. The
// measure is the distance in CIE L*a*b*, computed here anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <set>

#include "display/colour_rules.h"
#include "tests/source_folder.h"

namespace qm {
namespace {

using Lab = std::array<double, 3>;

double Linear(double share) {
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Root(double value) {
  return value > 216.0 / 24389 ? std::cbrt(value) : (24389.0 / 27 * value + 16) / 116;
}

Lab LabOf(const Colour& colour) {
  const double red = Linear(colour.red), green = Linear(colour.green), blue = Linear(colour.blue);
  const double x = Root((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
  const double y = Root(0.2126 * red + 0.7152 * green + 0.0722 * blue);
  const double z = Root((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.089);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Difference(const Lab& a, const Lab& b) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

// Degrees on the painters' wheel.
double HueOf(const Colour& c) {
  const double most = std::max({c.red, c.green, c.blue});
  const double range = most - std::min({c.red, c.green, c.blue});
  if (range == 0) return 0;
  if (most == c.red) return std::fmod(60 * (c.green - c.blue) / range + 360, 360);
  return most == c.green ? 60 * (c.blue - c.red) / range + 120
                         : 60 * (c.red - c.green) / range + 240;
}

// The colours of a table in the order of their numbers; a gap or a repeated number fails.
std::vector<Colour> TableOf(const char* file) {
  std::ifstream in(SourceFolder() / "install" / "QMconfig" / file);
  std::map<int, Colour> colours;
  int section = -1;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("[")) section = std::stoi(line.substr(1));
    if (!line.starts_with("value=")) continue;
    const std::string value = line.substr(6);
    EXPECT_TRUE(
        colours.emplace(section, ParseColour(std::wstring(value.begin(), value.end()))).second);
  }
  std::vector<Colour> table;
  for (const auto& [number, colour] : colours) {
    EXPECT_EQ(number, static_cast<int>(table.size()));
    table.push_back(colour);
  }
  return table;
}

void ExpectNeitherBlackNorWhite(const std::vector<Colour>& table) {
  for (const Colour& colour : table) {
    EXPECT_GE(LabOf(colour)[0], 30);
    EXPECT_LE(LabOf(colour)[0], 90);
  }
}

TEST(ColourTables, HuesLieEvenlyAndNeighboursFarApart) {
  const std::vector<Colour> table = TableOf("QmUGColor.ini");
  ASSERT_EQ(table.size(), 217u);
  ExpectNeitherBlackNorWhite(table);
  std::set<std::array<double, 3>> distinct;
  std::map<int, int> of_hue;  // twelfths of the wheel
  for (const Colour& colour : table) {
    distinct.insert({colour.red, colour.green, colour.blue});
    ++of_hue[static_cast<int>(HueOf(colour) / 30)];
  }
  EXPECT_EQ(distinct.size(), table.size());
  EXPECT_EQ(of_hue.size(), 12u);
  for (const auto& [twelfth, count] : of_hue) EXPECT_NEAR(count, 217 / 12.0, 5) << twelfth;
  for (size_t i = 1; i < table.size(); ++i) {
    EXPECT_GE(Difference(LabOf(table[i - 1]), LabOf(table[i])), 50) << i;
  }
}

TEST(ColourTables, AnyTwoOfTheDistinctColoursDifferVisibly) {
  const std::vector<Colour> table = TableOf("QmOptiColor.ini");
  ASSERT_EQ(table.size(), 201u);
  ExpectNeitherBlackNorWhite(table);
  for (size_t i = 0; i < table.size(); ++i) {
    for (size_t k = 0; k < i; ++k) {
      EXPECT_GE(Difference(LabOf(table[i]), LabOf(table[k])), 13.5) << i << " and " << k;
    }
  }
}

}  // namespace
}  // namespace qm
