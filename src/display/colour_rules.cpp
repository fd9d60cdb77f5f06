// Draws and reads colours.
#include "display/colour_rules.h"

#include <algorithm>

#include "frame/text/list_rules.h"

namespace qm {
namespace {

constexpr int kHighestChannel = 255;
constexpr int kChannelValues = kHighestChannel + 1;
constexpr int kHueColours = 217;
constexpr int kDistinctColours = 201;

// The number that a text begins with.
int ChannelOf(std::wstring_view text) {
  int channel = 0;
  for (const wchar_t c : text) {
    if (c < L'0' || c > L'9') break;
    channel = std::min(channel * 10 + (c - L'0'), kHighestChannel);
  }
  return channel;
}

double Share(int channel) {
  return channel / static_cast<double>(kHighestChannel);
}

double RandomChannel(const NextRandom& random) {
  return Share(random() % kChannelValues);
}

}  // namespace

ColourMode ColourModeOf(std::wstring_view setting) {
  const std::wstring value = WithoutBlanks(setting);
  if (value == L"asUG") return ColourMode::kHues;
  if (value == L"Optimization") return ColourMode::kDistinct;
  return value == L"random" ? ColourMode::kRandom : ColourMode::kNone;
}

int ColoursInTable(ColourMode mode) {
  if (mode == ColourMode::kHues) return kHueColours;
  return mode == ColourMode::kDistinct ? kDistinctColours : 0;
}

Colour ParseColour(std::wstring_view text) {
  const std::wstring value = WithoutBlanks(text);
  std::wstring_view rest = value;
  double channels[3] = {};
  for (double& channel : channels) {
    const size_t stop = std::min(rest.find(L'.'), rest.size());
    channel = Share(ChannelOf(rest.substr(0, stop)));
    rest.remove_prefix(std::min(stop + 1, rest.size()));
  }
  return {channels[0], channels[1], channels[2]};
}

Colour ChooseColour(ColourMode mode, const NextRandom& random, const TableColour& table) {
  if (mode == ColourMode::kNone) return {};
  const int colours = ColoursInTable(mode);
  if (colours > 0) return table(random() % colours);
  Colour colour;
  colour.red = RandomChannel(random);
  colour.green = RandomChannel(random);
  colour.blue = RandomChannel(random);
  return colour;
}

}  // namespace qm
