// The words that scripts use for the host's numbers: statuses, modes, item types, languages.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace wb {

struct NumberWord {
  std::string word;
  int number;
};

// "general_error" is the status that the host calls PRO_TK_GENERAL_ERROR.
std::span<const NumberWord> StatusWords();
std::span<const NumberWord> ModeWords();
std::span<const NumberWord> ItemWords();

// The number of a word, which may also be written as a whole number where no word is known.
std::optional<int> NumberOf(std::span<const NumberWord> words, std::string_view word);
// The word, or the number as text when it has none.
std::string WordOf(std::span<const NumberWord> words, int number);

// A whole number, or a decimal one, that fills the word; none otherwise.
std::optional<int> WholeNumber(std::string_view word);
std::optional<double> DecimalNumber(std::string_view word);

// The candidate that a mistyped word most likely stands for; empty when none comes near.
std::string NearestWord(std::string_view word, std::span<const std::string> candidates);

}  // namespace wb
