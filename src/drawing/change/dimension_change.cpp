// Changes dimensions.
#include "drawing/change/dimension_change.h"

#include <cmath>
#include <optional>

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/dimension.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// Differences that a host's way of keeping numbers may leave.
constexpr double kSameTolerance = 1e-9;

void LogAnswer(const ProModelitem& dimension, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(L"dimension " + std::to_wstring(dimension.id), function, status);
}

// A line of an array that owns its host's memory.
struct TextLine {
  ProLine text;
};

struct FirstLine {
  bool is_told = false;
  std::optional<std::wstring> text;  // none when the dimension has no text
};

FirstLine ReadFirstLine(ProModelitem& dimension) {
  HostArray<ProLine> lines;
  const ProError status = ProDimensionTextGet(&dimension, lines.put());
  if (!Ok(status)) {
    const bool has_none = status == PRO_TK_E_NOT_FOUND;
    if (!has_none) LogAnswer(dimension, "ProDimensionTextGet", status);
    return {.is_told = has_none, .text = std::nullopt};
  }
  const auto count = ToldArraySize(lines.get());
  if (!count) LogAnswer(dimension, "ProArraySizeGet", PRO_TK_GENERAL_ERROR);
  if (!count || *count < 1) return {.is_told = count.has_value(), .text = std::nullopt};
  // An empty line would lose the value: the new text stands around it.
  std::wstring line(FixedText(lines[0]));
  return {true, line.empty() ? std::nullopt : std::optional(std::move(line))};
}

// Whether the tolerance is there as it was meant: the host may take the numbers in another way.
void CheckTolerance(ProModelitem& dimension, const DimTolerance& wanted) {
  double upper = 0;
  double lower = 0;
  const ProError status = ProDimensionToleranceGet(&dimension, &upper, &lower);
  LogAnswer(dimension, "ProDimensionToleranceGet", status);
  if (!Ok(status)) return;
  if (std::fabs(upper - wanted.upper) <= kSameTolerance &&
      std::fabs(std::fabs(lower) - wanted.lower) <= kSameTolerance) {
    return;
  }
  LogEvent("dimension " + std::to_string(dimension.id) + ": the tolerance reads back as +" +
           std::to_string(upper) + " -" + std::to_string(lower));
}

}  // namespace

void DimensionChange::Apply(ProModelitem& dimension) const {
  IsTolerance(button_.change) ? SetTolerance(dimension) : SetText(dimension);
}

void DimensionChange::SetText(ProModelitem& dimension) const {
  const bool builds_on_present = button_.change != DimChange::kPrefix;
  FirstLine present{true, std::nullopt};
  if (builds_on_present) present = ReadFirstLine(dimension);
  // A text that is there, but cannot be read, would be lost.
  if (!present.is_told) return;
  const auto line = NewDimLine(button_, typed_, present.text);
  TextLine copy = {};
  HostArray<TextLine> lines;
  if (!line || !FillFixedText(*line, copy.text)) {
    return LogAnswer(dimension, "the new text", PRO_TK_LINE_TOO_LONG);
  }
  if (!Ok(lines.Allocate()) || !Ok(lines.Append(copy))) {
    return LogAnswer(dimension, "ProArrayObjectAdd", PRO_TK_OUT_OF_MEMORY);
  }
  LogAnswer(dimension, "ProDimensionTextSet",
            ProDimensionTextSet(&dimension, reinterpret_cast<ProLine*>(lines.get())));
}

void DimensionChange::SetTolerance(ProModelitem& dimension) const {
  const bool is_symmetric = button_.change == DimChange::kSymmetric;
  DimTolerance tolerance = ToleranceOf(button_);
  LogAnswer(dimension, "ProDimensionToltypeSet",
            ProDimensionToltypeSet(
                &dimension, is_symmetric ? PRO_TOL_PLUS_MINUS_SYM_SUPER : PRO_TOL_PLUS_MINUS));
  LogAnswer(dimension, "ProDimensionTollabelSet",
            ProDimensionTollabelSet(&dimension, kNoToleranceTable, nullptr, 0));
  const ProError status = ProDimensionToleranceSet(&dimension, &tolerance.upper, &tolerance.lower);
  LogAnswer(dimension, "ProDimensionToleranceSet", status);
  if (Ok(status)) CheckTolerance(dimension, ToleranceOf(button_));
}

}  // namespace qm
