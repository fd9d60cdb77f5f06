// What a field of a dialog may be taken for after it was filled from a setting. A field that does
// not show its setting looks like one that the user left empty; taken for that, it would be saved
// over the setting, and work would be done by it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qm {

enum class FillResult {
  kTaken,
  kUnknownValue,  // the field has no such value, as a menu without the item that the setting names
  kFailed,
};

// A field at the moment when it was filled.
struct Filling {
  std::optional<std::wstring> stored;  // its setting; nothing: that could not be read
  FillResult result = FillResult::kTaken;
  std::optional<std::wstring> held;  // what it showed then; nothing: the host does not tell
};

// What the field showed is believed more than the answer to its filling.
bool ShowsSetting(const Filling& filling);

// Whether what the field says now may replace its setting: it showed the setting, there is none, or
// the user has changed the field since.
bool MaySave(const Filling& filling, std::wstring_view now);

// Whether an action may work by what the field says now. That includes a field which has no such
// value as its setting names: it shows another one, as meant.
bool MayUse(const Filling& filling, std::wstring_view now);

}  // namespace qm
