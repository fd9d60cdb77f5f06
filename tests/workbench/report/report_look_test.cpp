// Whether the page can be read: contrast of every text by day and by night.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <regex>

#include "workbench/report/report.h"

namespace wb {
namespace {

// The colours of the style sheets by name, light and dark ones apart.
struct Style {
  std::map<std::string, std::string> light;
  std::map<std::string, std::string> dark;
};

Style StyleOf(const std::string& html) {
  const std::size_t begin = html.find("<style>");
  const std::string css = html.substr(begin, html.find("</style>") - begin);
  const std::size_t dark = css.find("prefers-color-scheme: dark");
  const std::size_t dark_end = css.find("}", dark);
  static const std::regex kColour("(--[-a-z]+): *([^;{}]+)[;}]");
  Style style;
  for (std::sregex_iterator at(css.begin(), css.end(), kColour), end; at != end; ++at) {
    const auto place = static_cast<std::size_t>(at->position());
    (place > dark && place < dark_end ? style.dark : style.light)[(*at)[1]] = (*at)[2];
  }
  return style;
}

double Linear(int level) {
  const double share = level / 255.0;
  return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const std::string& colour) {  // "#rrggbb"
  EXPECT_EQ(colour.size(), 7u) << colour;
  const auto level = [&](std::size_t at) { return std::stoi(colour.substr(at, 2), nullptr, 16); };
  return 0.2126 * Linear(level(1)) + 0.7152 * Linear(level(3)) + 0.0722 * Linear(level(5));
}

double Contrast(const std::string& a, const std::string& b) {
  const double one = Luminance(a), other = Luminance(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// The rules draw texts in "ink" on "paper" and nothing else, so that every text can be read
// whatever it comes to stand on.
TEST(ReportLookTest, EveryInkCanBeReadOnEveryPaperByDayAndByNight) {
  const Style style = StyleOf(RenderReport({}));
  ASSERT_FALSE(style.dark.empty());
  int pairs = 0;
  for (const auto* colours : {&style.light, &style.dark}) {
    EXPECT_EQ(colours->size(), style.light.size());
    for (const auto& [ink, text] : *colours) {
      if (!ink.ends_with("ink")) continue;
      for (const auto& [paper, ground] : *colours) {
        if (!paper.ends_with("paper")) continue;
        ++pairs;
        EXPECT_GE(Contrast(text, ground), 4.5)
            << ink << " " << text << " on " << paper << " " << ground;
      }
    }
  }
  EXPECT_GT(pairs, 50);
}

}  // namespace
}  // namespace wb
