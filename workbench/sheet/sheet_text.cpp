// Texts of dimensions and notes.
#include "workbench/sheet/sheet_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace wb {
namespace {

constexpr char kSymbolStart = '\x01';
constexpr char kSymbolEnd = '\x02';
// The dimension's value inside its text.
constexpr std::string_view kValue = "@D";

struct Symbol {
  char letter;
  const char* sign;
};
constexpr Symbol kSymbols[] = {
    {'n', "\u00D8"},        // diameter
    {'o', "\u25A1"},        // square
    {'v', "\u2514\u2518"},  // counterbore: few fonts have its own sign
    {'w', "\u2228"},        // countersink, likewise
    {'x', "\u21A7"},        // depth
};

std::string SignOf(char letter) {
  const auto found = std::ranges::find(kSymbols, letter, &Symbol::letter);
  return found == std::end(kSymbols) ? std::string(1, letter) : found->sign;
}

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    lines.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return lines;
}

std::string SignedText(double value) {
  const std::string text = LengthText(value);
  return value > 0 && text != "0" ? "+" + text : text;
}

// The value and what stands with it, by the type of tolerance.
TextLine ValueOf(const Dimension& dimension) {
  const std::string value = LengthText(dimension.value);
  const std::string both = "\u00B1" + LengthText(dimension.upper);
  switch (dimension.tolerance) {
    case ToleranceType::kLimits:
      return {"", LengthText(dimension.value + dimension.upper),
              LengthText(dimension.value - dimension.lower)};
    case ToleranceType::kPlusMinus:
      return {value, SignedText(dimension.upper), SignedText(-dimension.lower)};
    case ToleranceType::kSymmetric:
      return {value + both};
    case ToleranceType::kSymmetricSuperscript:
      return {value, both};
    case ToleranceType::kNominal:
      break;
  }
  return {value};
}

TextLine LineOf(const Dimension& dimension, const std::string& line) {
  const std::size_t at = line.find(kValue);
  if (at == std::string::npos) return {WithSymbols(line)};
  TextLine shown = ValueOf(dimension);
  shown.text = WithSymbols(line.substr(0, at)) + shown.text;
  const std::string rest = WithSymbols(line.substr(at + kValue.size()));
  (shown.upper.empty() ? shown.text : shown.rest) += rest;
  return shown;
}

}  // namespace

std::string LengthText(double value) {
  char text[64];
  if (!(std::abs(value) < 1e15)) return "?";
  std::snprintf(text, sizeof text, "%.3f", value);
  std::string shown = text;
  shown.erase(shown.find_last_not_of('0') + 1);
  if (shown.ends_with('.')) shown.pop_back();
  return shown == "-0" ? "0" : shown;
}

std::string WithSymbols(std::string_view text) {
  std::string shown;
  bool in_symbols = false;
  for (const char c : text) {
    if (c == kSymbolStart || c == kSymbolEnd) {
      in_symbols = c == kSymbolStart;
    } else if (in_symbols) {
      shown += SignOf(c);
    } else {
      shown += c;
    }
  }
  return shown;
}

std::vector<TextLine> LinesOf(const SheetNote& note) {
  std::vector<TextLine> lines;
  for (const std::string& line : SplitLines(note.text)) lines.push_back({WithSymbols(line)});
  return lines;
}

std::vector<TextLine> LinesOf(const Dimension& dimension) {
  const std::string text = dimension.text.empty() ? std::string(kValue) : dimension.text;
  std::vector<TextLine> lines;
  for (const std::string& line : SplitLines(text)) lines.push_back(LineOf(dimension, line));
  return lines;
}

}  // namespace wb
