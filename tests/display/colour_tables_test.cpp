// The shipped colour tables: 217 colours round the hues, 201 of which any two differ visibly. The
// measure is the distance in CIE L*a*b*, computed here anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>

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

struct Table {
  std::vector<Colour> colours;  // in the order of their numbers; a gap or a repeated number fails
  double least = 0;             // the difference that the table's head tells
};

Table TableOf(const char* file) {
  std::ifstream in(SourceFolder() / "install" / "QMconfig" / file);
  std::map<int, Colour> colours;
  Table table;
  int section = -1;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with(";")) table.least = std::atof(line.substr(line.rfind("：") + 3).c_str());
    if (line.starts_with("[")) section = std::stoi(line.substr(1));
    if (!line.starts_with("value=")) continue;
    const std::string value = line.substr(6);
    EXPECT_TRUE(
        colours.emplace(section, ParseColour(std::wstring(value.begin(), value.end()))).second);
  }
  for (const auto& [number, colour] : colours) {
    EXPECT_EQ(number, static_cast<int>(table.colours.size()));
    table.colours.push_back(colour);
  }
  return table;
}

void ExpectNeitherBlackNorWhite(const std::vector<Colour>& table) {
  for (const Colour& colour : table) {
    EXPECT_GE(LabOf(colour)[0], 32);
    EXPECT_LE(LabOf(colour)[0], 88);
  }
}

double LeastOfAny(const std::vector<Colour>& table) {
  double least = HUGE_VAL;
  for (size_t i = 0; i < table.size(); ++i) {
    for (size_t k = 0; k < i; ++k) {
      least = std::min(least, Difference(LabOf(table[i]), LabOf(table[k])));
    }
  }
  return least;
}

double LeastOfNeighbours(const std::vector<Colour>& table) {
  double least = HUGE_VAL;
  for (size_t i = 1; i < table.size(); ++i) {
    least = std::min(least, Difference(LabOf(table[i - 1]), LabOf(table[i])));
  }
  return least;
}

// What a head tells is rounded.
constexpr double kRounding = 0.051;

TEST(ColourTables, HuesLieEvenlyAndNeighboursFarApart) {
  const auto [table, told] = TableOf("QmUGColor.ini");
  ASSERT_EQ(table.size(), 217u);
  ExpectNeitherBlackNorWhite(table);
  std::map<long, int> of_hue;  // 31 parts of the wheel
  for (const Colour& colour : table) ++of_hue[std::lround(HueOf(colour) * 31 / 360) % 31];
  EXPECT_EQ(of_hue.size(), 31u);
  for (const auto& [hue, count] : of_hue) EXPECT_EQ(count, 7) << hue;
  EXPECT_GE(LeastOfAny(table), 8);
  EXPECT_GE(LeastOfNeighbours(table), 50);
  EXPECT_NEAR(LeastOfNeighbours(table), told, kRounding);
}

TEST(ColourTables, AnyTwoOfTheDistinctColoursDifferVisibly) {
  const auto [table, told] = TableOf("QmOptiColor.ini");
  ASSERT_EQ(table.size(), 201u);
  ExpectNeitherBlackNorWhite(table);
  EXPECT_GE(LeastOfAny(table), 13.5);
  EXPECT_NEAR(LeastOfAny(table), told, kRounding);
}

}  // namespace
}  // namespace qm
