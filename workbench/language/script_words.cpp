// Tables of words, and the search for the one that was meant.
#include "workbench/language/script_words.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "toolkit/status_names.h"

namespace wb {
namespace {

// clang-format off
const NumberWord kModeWords[] = {
    {"by_model", PRO_MODE_UNUSED},     {"part", PRO_MODE_PART_1},       {"sheet_metal_part", PRO_MODE_PART_2},
    {"assembly", PRO_MODE_ASSEMBLY},   {"drawing", PRO_MODE_DRAWING},   {"manufacturing",    PRO_MODE_MFG},
};
const NumberWord kItemWords[] = {
    {"assembly",   PRO_ASSEMBLY},   {"part",      PRO_PART},      {"feature", PRO_FEATURE},
    {"drawing",    PRO_DRAWING},    {"surface",   PRO_SURFACE},   {"edge",    PRO_EDGE},
    {"dimension",  PRO_DIMENSION},  {"axis",      PRO_AXIS},      {"csys",    PRO_CSYS},
    {"quilt",      PRO_QUILT},      {"curve",     PRO_CURVE},     {"point",   PRO_POINT},
    {"note",       PRO_NOTE},       {"edge_start", PRO_EDGE_START}, {"edge_end", PRO_EDGE_END},
    {"table",      PRO_DRAW_TABLE}, {"view",      PRO_VIEW},
};
// clang-format on

// "PRO_TK_E_NOT_FOUND" -> "not_found"
std::string StatusWord(std::string_view name) {
  for (const std::string_view prefix : {"PRO_TK_", "E_"}) {
    if (name.starts_with(prefix)) name.remove_prefix(prefix.size());
  }
  std::string word(name);
  for (char& c : word) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return word;
}

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
  static const std::vector<NumberWord> words = [] {
    std::vector<NumberWord> all;
    for (const qm::StatusRow& row : qm::kStatusNames)
      all.push_back({StatusWord(row.name), row.status});
    return all;
  }();
  return words;
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
