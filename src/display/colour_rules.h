// Which colour a model gets: from one of two tables, at random, or none.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qm {

enum class ColourMode {
  kHues,      // "asUG": the table that goes round the hues
  kDistinct,  // "Optimization": the table of colours that differ visibly
  kRandom,    // "random"
  kNone,      // any other setting
};
// By the setting's value, whose blanks do not count.
ColourMode ColourModeOf(std::wstring_view setting);

// How many sections a mode's table has, named "0" and so on; 0 for modes without one.
int ColoursInTable(ColourMode mode);

// Channels from 0 to 1; black as long as nothing is chosen.
struct Colour {
  double red = 0;
  double green = 0;
  double blue = 0;
  bool operator==(const Colour&) const = default;
};

// A table's text such as "255.128.0", with blanks anywhere. A channel that is missing or no number
// is 0, and none is above 255.
Colour ParseColour(std::wstring_view text);

// Never negative.
using NextRandom = std::function<int()>;
using TableColour = std::function<Colour(int section)>;
// One draw for a table, three (red, green, blue) at random. Two models may get one colour.
Colour ChooseColour(ColourMode mode, const NextRandom& random, const TableColour& table);

}  // namespace qm
