// Whether the page can be read: contrast of every text by day and by night.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <regex>

#include "workbench/report/report.h"

namespace wb {
namespace {

// What the style sheets say: the colours by name, light and dark ones apart, and the rules.
struct Style {
  std::map<std::string, std::string> light;
  std::map<std::string, std::string> dark;
  std::vector<std::pair<std::string, std::string>> uses;  // property, value
};

Style StyleOf(const std::string& html) {
  const std::size_t begin = html.find("<style>");
  const std::string css = html.substr(begin, html.find("</style>") - begin);
  const std::size_t dark = css.find("prefers-color-scheme: dark");
  const std::size_t dark_end = css.find("}", dark);
  static const std::regex kRule("([-a-z]+): *([^;{}]+)[;}]");
  Style style;
  for (std::sregex_iterator at(css.begin(), css.end(), kRule), end; at != end; ++at) {
    const std::string name = (*at)[1];
    const std::string value = (*at)[2];
    const auto place = static_cast<std::size_t>(at->position());
    if (!name.starts_with("--")) {
      style.uses.emplace_back(name, value);
    } else {
      (place > dark && place < dark_end ? style.dark : style.light)[name] = value;
    }
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

TEST(ReportLookTest, TextsAreDrawnInInkOnPaperOnly) {
  static const std::regex kInk("var\\(--([a-z]+-)?ink\\)|inherit");
  static const std::regex kGround("var\\(--([a-z]+-)?(paper|mark)\\)|none");
  int texts = 0;
  for (const auto& [property, value] : StyleOf(RenderReport({})).uses) {
    if (property == "color") {
      ++texts;
      EXPECT_TRUE(std::regex_match(value, kInk)) << "color: " << value;
    }
    if (property == "background" || property == "background-color") {
      EXPECT_TRUE(std::regex_match(value, kGround)) << property << ": " << value;
    }
    // Would make a colour that no table names.
    if (property == "opacity" || property == "filter") ADD_FAILURE() << property;
  }
  EXPECT_GT(texts, 10);
}

}  // namespace
}  // namespace wb
