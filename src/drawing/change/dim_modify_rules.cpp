// Buttons of the dimension palette.
#include "drawing/change/dim_modify_rules.h"

#include <algorithm>

#include "toolkit/numbers.h"

namespace qm {
namespace {

// The value of the dimension in its text.
constexpr wchar_t kValue[] = L"@D";
constexpr wchar_t kTimes[] = L"×";
constexpr wchar_t kEqual[] = L"EQS";
// A letter of the host's symbol font stands between these two.
constexpr wchar_t kDepthSymbol[] = L"\x01x\x02";

constexpr size_t kLineLimit = PRO_LINE_SIZE - 1;

// clang-format off
// The three lists of values differ on purpose: 5 stands in the upper one and 20 in the lower one,
// and only the symmetric one has 0.3.
constexpr DimButton kButtons[] = {
    {"preBt1",       DimChange::kPrefix,       L"R@D",              0},
    {"preBt2",       DimChange::kPrefix,       L"\x01n\x02@D",      0},
    {"preBt3",       DimChange::kPrefix,       L"M@D",              0},
    {"preBt4",       DimChange::kPrefix,       L"S\x01n\x02@D",     0},
    {"preBt5",       DimChange::kPrefix,       L"SR@D",             0},
    {"preBt6",       DimChange::kPrefix,       L"t@D",              0},
    {"preBt7",       DimChange::kPrefix,       L"(@D)",             0},
    {"preBt8",       DimChange::kPrefix,       L"\x01o\x02@D",      0},
    {"preBt9",       DimChange::kPrefix,       L"\x01w\x02@D",      0},
    {"preBt10",      DimChange::kPrefix,       L"\x01v\x02@D",      0},
    {"preBt11",      DimChange::kQuantity,     nullptr,             0},
    {"sufBt1",       DimChange::kEqualSpacing, nullptr,             0},
    {"sufBt2",       DimChange::kDepth,        nullptr,             0},
    {"upTolBt1",     DimChange::kUpper,        nullptr,             0.01},
    {"upTolBt2",     DimChange::kUpper,        nullptr,             0.02},
    {"upTolBt3",     DimChange::kUpper,        nullptr,             0.03},
    {"upTolBt4",     DimChange::kUpper,        nullptr,             0.05},
    {"upTolBt5",     DimChange::kUpper,        nullptr,             0.1},
    {"upTolBt6",     DimChange::kUpper,        nullptr,             0.2},
    {"upTolBt7",     DimChange::kUpper,        nullptr,             0.5},
    {"upTolBt8",     DimChange::kUpper,        nullptr,             1},
    {"upTolBt9",     DimChange::kUpper,        nullptr,             2},
    {"upTolBt10",    DimChange::kUpper,        nullptr,             3},
    {"upTolBt11",    DimChange::kUpper,        nullptr,             5},
    {"upTolBt12",    DimChange::kUpper,        nullptr,             6},
    {"upTolBt13",    DimChange::kUpper,        nullptr,             10},
    {"downTolBt1",   DimChange::kLower,        nullptr,             0.01},
    {"downTolBt2",   DimChange::kLower,        nullptr,             0.02},
    {"downTolBt3",   DimChange::kLower,        nullptr,             0.03},
    {"downTolBt4",   DimChange::kLower,        nullptr,             0.05},
    {"downTolBt5",   DimChange::kLower,        nullptr,             0.1},
    {"downTolBt6",   DimChange::kLower,        nullptr,             0.2},
    {"downTolBt7",   DimChange::kLower,        nullptr,             0.5},
    {"downTolBt8",   DimChange::kLower,        nullptr,             1},
    {"downTolBt9",   DimChange::kLower,        nullptr,             2},
    {"downTolBt10",  DimChange::kLower,        nullptr,             3},
    {"downTolBt11",  DimChange::kLower,        nullptr,             6},
    {"downTolBt12",  DimChange::kLower,        nullptr,             10},
    {"downTolBt13",  DimChange::kLower,        nullptr,             20},
    {"MirTolBt1",    DimChange::kSymmetric,    nullptr,             0.01},
    {"MirTolBt2",    DimChange::kSymmetric,    nullptr,             0.02},
    {"MirTolBt3",    DimChange::kSymmetric,    nullptr,             0.03},
    {"MirTolBt4",    DimChange::kSymmetric,    nullptr,             0.05},
    {"MirTolBt5",    DimChange::kSymmetric,    nullptr,             0.1},
    {"MirTolBt6",    DimChange::kSymmetric,    nullptr,             0.2},
    {"MirTolBt7",    DimChange::kSymmetric,    nullptr,             0.3},
    {"MirTolBt8",    DimChange::kSymmetric,    nullptr,             0.5},
    {"MirTolBt9",    DimChange::kSymmetric,    nullptr,             1},
    {"MirTolBt10",   DimChange::kSymmetric,    nullptr,             2},
};
// clang-format on

}  // namespace

std::span<const DimButton> DimButtons() {
  return kButtons;
}

bool IsTolerance(DimChange change) {
  return change >= DimChange::kUpper;
}

bool WantsTyping(DimChange change) {
  return change == DimChange::kQuantity || change == DimChange::kDepth;
}

bool ClearsSelection(DimChange change) {
  return WantsTyping(change) || change == DimChange::kEqualSpacing;
}

std::optional<std::wstring> NewDimLine(const DimButton& button, std::wstring_view typed,
                                       const std::optional<std::wstring>& present) {
  const std::wstring old = present.value_or(kValue);
  std::wstring line;
  if (button.change == DimChange::kPrefix) line = button.text;
  if (button.change == DimChange::kQuantity) line = std::wstring(typed) + kTimes + old;
  if (button.change == DimChange::kEqualSpacing) line = old + kEqual;
  if (button.change == DimChange::kDepth) line = old + kDepthSymbol + std::wstring(typed);
  return line.size() <= kLineLimit ? std::optional(line) : std::nullopt;
}

DimTolerance ToleranceOf(const DimButton& button) {
  const bool has_upper = button.change != DimChange::kLower;
  const bool has_lower = button.change != DimChange::kUpper;
  return {has_upper ? button.value : 0, has_lower ? button.value : 0};
}

}  // namespace qm
