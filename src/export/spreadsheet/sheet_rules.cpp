// Rules of the worksheet.
#include "export/spreadsheet/sheet_rules.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

// Starts of formulas, of errors such as "#N/A", and the text mark itself; also in full width.
constexpr std::wstring_view kFirstCharacters = L"=+-@#'＝＋－＠";

// All words that stand in dates and times. Texts with any other word are no number.
// clang-format off
constexpr std::wstring_view kNumberWords[] = {
    L"jan",     L"feb",      L"mar",   L"apr",   L"may",      L"jun",  L"jul",  L"aug",
    L"sep",     L"oct",      L"nov",   L"dec",   L"january",  L"february",      L"march",
    L"april",   L"june",     L"july",  L"august", L"september", L"october",     L"november",
    L"december", L"am",      L"pm",    L"a",     L"p",        L"e",
    L"年",      L"月",       L"日",    L"时",    L"時",       L"分",   L"秒",
    L"上午",    L"下午",     L"日上午", L"日下午",
};
// clang-format on
constexpr std::wstring_view kTruthValues[] = {L"true", L"false"};

bool IsDigit(wchar_t c) {
  return (c >= L'0' && c <= L'9') || (c >= 0xFF10 && c <= 0xFF19);
}

// Signs of numbers, among them the currencies, count as no part of a word.
bool IsWordCharacter(wchar_t c) {
  constexpr std::wstring_view kSigns = L"\u00A0￥¥£€％＋－（），．／：　";
  if (IsDigit(c) || kSigns.find(c) != std::wstring_view::npos) return false;
  return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || c >= 0x80;
}

template <size_t Size>
bool IsOneOf(const std::wstring_view (&words)[Size], std::wstring_view word) {
  return std::ranges::find(words, word) != std::end(words);
}

bool HoldsOnlyNumberWords(std::wstring_view text) {
  for (size_t begin = 0; begin < text.size();) {
    if (!IsWordCharacter(text[begin])) {
      ++begin;
      continue;
    }
    size_t end = begin;
    while (end < text.size() && IsWordCharacter(text[end])) ++end;
    // A single letter belongs to a number only behind its digits: "1e5", "9 p", but not "A1".
    if (begin == 0 && end == 1) return false;
    if (!IsOneOf(kNumberWords, text.substr(begin, end - begin))) return false;
    begin = end;
  }
  return true;
}

}  // namespace

std::wstring CellAddress(size_t column, size_t row) {
  return static_cast<wchar_t>(L'A' + column) + std::to_wstring(row);
}

bool ReadsAsOther(std::wstring_view text) {
  const size_t begin = text.find_first_not_of(L" \t");
  if (begin == std::wstring_view::npos) return false;
  if (kFirstCharacters.find(text[begin]) != std::wstring_view::npos) return true;
  const std::wstring lower =
      LowerCased(text.substr(begin, text.find_last_not_of(L" \t") + 1 - begin));
  if (IsOneOf(kTruthValues, lower)) return true;
  return std::ranges::any_of(lower, IsDigit) && HoldsOnlyNumberWords(lower);
}

std::wstring AsPlainText(std::wstring_view text) {
  return (ReadsAsOther(text) ? L"'" : L"") + std::wstring(text);
}

std::wstring AsFormattedText(std::wstring_view text) {
  return (text.starts_with(L'\'') ? L"'" : L"") + std::wstring(text);
}

std::wstring WholePart(double number) {
  if (!std::isfinite(number)) return {};
  char digits[400];
  const int length = std::snprintf(digits, sizeof(digits), "%f", number);
  // The decimal sign depends on the locale that the host has set.
  const char* const end =
      std::find_if(digits + 1, digits + length, [](char c) { return c < '0' || c > '9'; });
  return {static_cast<const char*>(digits), end};
}

}  // namespace qm
