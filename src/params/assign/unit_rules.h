// Unit systems by their names, and whether a change of units did what was chosen.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace qm {

// What a conversion keeps.
enum class KeptByConversion {
  kNumbers,  // the dimensions' values, so that the model is scaled
  kSize,
};
// By the name of a radio button, "SAME_DIMS" or "SAME_SIZE"; nothing for any other.
std::optional<KeptByConversion> KeptByButton(std::string_view button);

// The full name of the system of a radio button such as "mmNs"; nothing for any other.
std::optional<std::wstring> UnitSystemOf(std::string_view button);

// The one that models do not have by themselves.
inline constexpr wchar_t kOwnUnitSystem[] = L"mmgs";
// Length, mass, time and temperature of it.
inline constexpr const wchar_t* kOwnUnits[] = {L"mm", L"g", L"sec", L"C"};

// Whether the host counts the system, by its name, among those of mass, length and time.
bool IsMassLengthTime(std::wstring_view system);

// Millimetres of the length unit; nothing for a system that is not known by its name, which is
// compared without case.
std::optional<double> MillimetresOf(std::wstring_view system);

// Lowest and highest point along x, y and z, in a model's own units.
struct Extents {
  std::array<double, 3> low;
  std::array<double, 3> high;
};
// "10 x 20 x 0.5"
std::wstring SizesText(const Extents& extents);

enum class UnitChange { kAsChosen, kAsTheOther, kNeither };

// What the numbers of a model did when its length unit changed from `from` to `to` millimetres.
UnitChange JudgeChange(const Extents& before, const Extents& after, double from, double to,
                       KeptByConversion kept);

}  // namespace qm
