// Tables of words, and the search for the one that was meant.
#include "workbench/language/script_words.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace wb {
namespace {

// clang-format off
constexpr NumberWord kStatusWords[] = {
    {"no_error",          0}, {"general_error",  -1}, {"bad_inputs",    -2},
    {"user_abort",       -3}, {"not_found",      -4}, {"found",         -5},
    {"line_too_long",    -6}, {"continue",       -7}, {"bad_context",   -8},
    {"not_implemented",  -9}, {"out_of_memory", -10}, {"comm_error",   -11},
    {"no_change",       -12}, {"invalid_dir",   -15}, {"invalid_file", -16},
    {"cant_write",      -17}, {"invalid_type",  -18}, {"invalid_ptr",  -19},
    {"invalid_name",    -22}, {"cant_open",     -24}, {"not_valid",    -26},
    {"invalid_item",    -27}, {"msg_not_found", -28}, {"cant_access",  -33},
    {"in_use",          -39},
};
constexpr NumberWord kModeWords[] = {
    {"by_model", -1}, {"part", 1}, {"sheet_metal_part", 2}, {"assembly", 5}, {"drawing", 6},
    {"manufacturing", 8},
};
constexpr NumberWord kItemWords[] = {
    {"assembly",    1}, {"part",      2}, {"feature", 3}, {"drawing", 4}, {"surface",     5},
    {"edge",        6}, {"dimension", 8}, {"axis",   21}, {"csys",   25}, {"quilt",      57},
    {"curve",      62}, {"point",    66}, {"note",   68}, {"edge_start", 71}, {"edge_end", 72},
};
// clang-format on

template <typename Number>
std::optional<Number> WholeWord(std::string_view word) {
  Number number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return number;
}

// Letters to add, drop, change or swap with their neighbour to get from one word to the other.
size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::vector<size_t>> cost(a.size() + 1, std::vector<size_t>(b.size() + 1));
  for (size_t i = 0; i <= a.size(); ++i) {
    for (size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        cost[i][j] = i + j;
        continue;
      }
      const size_t change = a[i - 1] == b[j - 1] ? 0 : 1;
      cost[i][j] = std::min({cost[i - 1][j] + 1, cost[i][j - 1] + 1, cost[i - 1][j - 1] + change});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
        cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
      }
    }
  }
  return cost[a.size()][b.size()];
}

}  // namespace

std::span<const NumberWord> StatusWords() {
  return kStatusWords;
}
std::span<const NumberWord> ModeWords() {
  return kModeWords;
}
std::span<const NumberWord> ItemWords() {
  return kItemWords;
}

std::optional<int> NumberOf(std::span<const NumberWord> words, std::string_view word) {
  for (const NumberWord& row : words) {
    if (word == row.word) return row.number;
  }
  return WholeNumber(word);
}

std::string WordOf(std::span<const NumberWord> words, int number) {
  for (const NumberWord& row : words) {
    if (number == row.number) return row.word;
  }
  return std::to_string(number);
}

std::optional<int> WholeNumber(std::string_view word) {
  return WholeWord<int>(word);
}

std::optional<double> DecimalNumber(std::string_view word) {
  return WholeWord<double>(word);
}

std::string NearestWord(std::string_view word, std::span<const std::string> candidates) {
  std::string nearest;
  size_t least = std::max<size_t>(2, word.size() / 3) + 1;
  for (const std::string& candidate : candidates) {
    const size_t distance = Distance(word, candidate);
    if (distance < least) {
      least = distance;
      nearest = candidate;
    }
  }
  return nearest;
}

}  // namespace wb
