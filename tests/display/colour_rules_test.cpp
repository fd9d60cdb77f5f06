// The choice of colours with a generator of known numbers.
#include "display/colour_rules.h"

#include <gtest/gtest.h>

#include <set>

namespace qm {
namespace {

Colour NoTable(int) {
  ADD_FAILURE() << "the table is read";
  return {};
}

TEST(ColourModeOf, KnowsThreeWordsWhateverTheirBlanks) {
  EXPECT_EQ(ColourModeOf(L"asUG"), ColourMode::kHues);
  EXPECT_EQ(ColourModeOf(L" as UG "), ColourMode::kHues);
  EXPECT_EQ(ColourModeOf(L"Optimization"), ColourMode::kDistinct);
  EXPECT_EQ(ColourModeOf(L"random"), ColourMode::kRandom);
  for (const wchar_t* const other : {L"", L"asug", L"Random", L"217"}) {
    EXPECT_EQ(ColourModeOf(other), ColourMode::kNone) << other;
  }
}

TEST(ParseColour, ReadsThreeChannels) {
  EXPECT_EQ(ParseColour(L"255.128.0"), (Colour{1, 128 / 255.0, 0}));
  EXPECT_EQ(ParseColour(L" 10 . 2 0 . 30 "), (Colour{10 / 255.0, 20 / 255.0, 30 / 255.0}));
  EXPECT_EQ(ParseColour(L""), Colour());
  EXPECT_EQ(ParseColour(L"..51"), (Colour{0, 0, 51 / 255.0}));
  EXPECT_EQ(ParseColour(L"x.-1.51x"), (Colour{0, 0, 51 / 255.0}));
  EXPECT_EQ(ParseColour(L"256.99999999999999.3.7"), (Colour{1, 1, 3 / 255.0}));
}

TEST(ChooseColour, DrawsRedGreenAndBlueInThisOrder) {
  std::vector<int> numbers = {256 + 51, 255, 0};
  const auto next = [&] {
    const int number = numbers.back();
    numbers.pop_back();
    return number;
  };
  EXPECT_EQ(ChooseColour(ColourMode::kRandom, next, &NoTable), (Colour{0, 1, 51 / 255.0}));
}

TEST(ChooseColour, ReadsOnlyTheSectionsOfItsTable) {
  const std::pair<ColourMode, int> tables[] = {{ColourMode::kHues, 217},
                                               {ColourMode::kDistinct, 201}};
  for (const auto& [mode, count] : tables) {
    std::set<int> sections;
    const auto note = [&](int section) {
      sections.insert(section);
      return Colour{1, 1, 1};
    };
    for (int number = 0; number < 1000; ++number)
      ChooseColour(
          mode, [=] { return number; }, note);
    EXPECT_EQ(sections.size(), static_cast<size_t>(count));
    EXPECT_EQ(*sections.begin(), 0);
  }
}

TEST(ChooseColour, IsBlackWithoutADrawInAnyOtherMode) {
  const auto next = [] {
    ADD_FAILURE() << "a number is drawn";
    return 7;
  };
  EXPECT_EQ(ChooseColour(ColourMode::kNone, next, &NoTable), Colour());
}

}  // namespace
}  // namespace qm
