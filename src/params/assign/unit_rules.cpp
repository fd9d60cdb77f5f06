// Tables of unit systems, and the judgement of a change.
#include "params/assign/unit_rules.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "frame/text/letter_case.h"

namespace qm {
namespace {

struct SystemRow {
  const char* button;  // null: not to be chosen
  const wchar_t* name;
  double millimetres;
  bool is_mass_length_time;
};

// The small letter of the first name is the host's.
// clang-format off
constexpr SystemRow kSystems[] = {
    {"mmKs",  L"millimeter Kilogram Sec (mmKs)",  1,     true},
    {"CGS",   L"Centimeter Gram Second (CGS)",    10,    true},
    {"mmNs",  L"Millimeter Newton Second (mmNs)", 1,     false},
    {"MKS",   L"Meter Kilogram Second (MKS)",     1000,  true},
    {"IPS",   L"Inch Pound Second (IPS)",         25.4,  false},
    {"FPS",   L"Foot Pound Second (FPS)",         304.8, false},
    {"mmgs",  kOwnUnitSystem,                     1,     true},
};
// clang-format on

// The system that models of the host have by default; what follows in its name differs from release
// to release.
constexpr std::wstring_view kDefaultBeginning = L"inch lbm second";
constexpr double kMillimetresPerInch = 25.4;

const SystemRow* FindSystem(std::wstring_view name) {
  const auto* const row = std::ranges::find_if(
      kSystems, [&](const SystemRow& known) { return EqualIgnoringCase(known.name, name); });
  return row == std::end(kSystems) ? nullptr : row;
}

// Extents are as exact as the host's tessellation; length units differ by more than twice.
constexpr double kTolerance = 0.05;

double LargestNumber(const Extents& extents) {
  double largest = 0;
  for (size_t axis = 0; axis < 3; ++axis) {
    largest = std::max({largest, std::abs(extents.low[axis]), std::abs(extents.high[axis])});
  }
  return largest;
}

bool IsScaled(const Extents& before, const Extents& after, double factor) {
  const double most = kTolerance * factor * LargestNumber(before);
  for (size_t axis = 0; axis < 3; ++axis) {
    if (std::abs(after.low[axis] - factor * before.low[axis]) > most) return false;
    if (std::abs(after.high[axis] - factor * before.high[axis]) > most) return false;
  }
  return true;
}

}  // namespace

std::optional<KeptByConversion> KeptByButton(std::string_view button) {
  if (button == "SAME_DIMS") return KeptByConversion::kNumbers;
  if (button == "SAME_SIZE") return KeptByConversion::kSize;
  return std::nullopt;
}

std::optional<std::wstring> UnitSystemOf(std::string_view button) {
  for (const SystemRow& row : kSystems) {
    if (button == row.button) return row.name;
  }
  return std::nullopt;
}

bool IsMassLengthTime(std::wstring_view system) {
  const SystemRow* const row = FindSystem(system);
  return row != nullptr && row->is_mass_length_time;
}

std::optional<double> MillimetresOf(std::wstring_view system) {
  if (LowerCased(system).starts_with(kDefaultBeginning)) return kMillimetresPerInch;
  const SystemRow* const row = FindSystem(system);
  return row == nullptr ? std::nullopt : std::optional(row->millimetres);
}

std::wstring SizesText(const Extents& extents) {
  std::wstring text;
  for (size_t axis = 0; axis < 3; ++axis) {
    char size[32];
    std::snprintf(size, sizeof size, "%.6g", extents.high[axis] - extents.low[axis]);
    text += (text.empty() ? L"" : L" x ") +
            std::wstring(size, size + std::char_traits<char>::length(size));
  }
  return text;
}

UnitChange JudgeChange(const Extents& before, const Extents& after, double from, double to,
                       KeptByConversion kept) {
  const double for_size = from / to;
  const double chosen = kept == KeptByConversion::kSize ? for_size : 1;
  const double other = kept == KeptByConversion::kSize ? 1 : for_size;
  // A model without any extent looks the same under every change.
  if (LargestNumber(before) == 0) return UnitChange::kNeither;
  if (IsScaled(before, after, chosen)) return UnitChange::kAsChosen;
  return IsScaled(before, after, other) ? UnitChange::kAsTheOther : UnitChange::kNeither;
}

}  // namespace qm
