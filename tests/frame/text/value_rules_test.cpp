// Values as bills show them.
#include "frame/text/value_rules.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace qm {
namespace {

TEST(RealText, HasThreeDecimalsInEveryLocale) {
  const struct {
    double value;
    std::wstring text;
  } cases[] = {{12.5, L"12.500"},
               {0, L"0.000"},
               {-1.0005, L"-1.000"},
               {2.0006, L"2.001"},
               {1e15, L"1000000000000000.000"}};
  for (const char* const locale : {"C", "de_DE.UTF-8", "German"}) {
    if (std::setlocale(LC_NUMERIC, locale) == nullptr) continue;
    for (const auto& c : cases) EXPECT_EQ(RealText(c.value), c.text) << locale;
  }
  std::setlocale(LC_NUMERIC, "C");
  EXPECT_EQ(RealText(std::numeric_limits<double>::max()).size(), 309u + 4u);
}

TEST(BooleanText, KnowsOnlyYesAndNo) {
  EXPECT_EQ(BooleanText(1), L"是");
  EXPECT_EQ(BooleanText(0), L"否");
  EXPECT_EQ(BooleanText(2), L"");
  EXPECT_EQ(BooleanText(-1), L"");
}

}  // namespace
}  // namespace qm
