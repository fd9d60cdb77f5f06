// Fields of a dialog that stand in a settings file: filled when the dialog opens, written back when
// it is saved. What was not shown is neither written back nor worked by.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "frame/dialogs/dialog.h"
#include "frame/dialogs/filling_rules.h"

namespace qm {

enum class FieldKind {
  kInput,
  kRadio,   // the value is the selected button's name
  kOption,  // ... the chosen item
  kCheck,   // ... "1" or "0"; any other setting leaves the button as it is
};

inline constexpr wchar_t kChecked[] = L"1";
inline constexpr wchar_t kUnchecked[] = L"0";

struct StoredField {
  const char* component;  // also the name of the setting's section
  FieldKind kind;
  const wchar_t* key;
};

// How the fields of a dialog were saved.
struct SaveTally {
  int kept = 0;         // settings that were left as they are, since their fields say nothing
  bool failed = false;  // the file has not taken one of the others
};

// Tells in the message area that the settings were saved, how many were left as they are, or that
// they could not be written to the file.
void NoteSaved(const SaveTally& tally, const std::wstring& path);

// Must outlive the dialog: bound to its buttons as their data.
class StoredFields {
 public:
  void Fill(const DialogView& dialog, const StoredField& field, const std::wstring& path);
  // With what was read elsewhere; nothing: it could not be read.
  void Fill(const DialogView& dialog, const StoredField& field,
            const std::optional<std::wstring>& stored);

  // For actions. Nothing when the host does not tell, or when the field does not show its setting
  // and the user has not changed it since.
  std::optional<std::wstring> Value(const DialogView& dialog, const StoredField& field) const;

  // Logs what was kept and what was not taken. A radio group without a selection keeps its setting;
  // where there is none, an empty one is written.
  void Save(const DialogView& dialog, const StoredField& field, const std::wstring& path,
            SaveTally* tally) const;

 private:
  // Null for a field that was not filled.
  const Filling* Find(const StoredField& field) const;

  std::map<std::string, Filling, std::less<>> fillings_;  // by component
};

}  // namespace qm
