// Filling, reading and saving of fields by their kind.
#include "frame/dialogs/stored_fields.h"

#include <utility>

#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/settings/config.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {
namespace {

constexpr size_t kLongestButtonName = 255;

// Nothing when the host does not tell. A radio group may be without a selection, a menu is not.
std::optional<std::wstring> Shown(const DialogView& dialog, const StoredField& field) {
  switch (field.kind) {
    case FieldKind::kInput:
      return dialog.TryInputValue(field.component);
    case FieldKind::kRadio: {
      const auto button = dialog.TryRadioValue(field.component);
      return button ? std::optional(FromAnsi(*button)) : std::nullopt;
    }
    case FieldKind::kOption: {
      auto item = dialog.TryOptionValue(field.component);
      return item && !item->empty() ? item : std::nullopt;
    }
    case FieldKind::kCheck: {
      const auto state = dialog.CheckState(field.component);
      return state ? std::optional<std::wstring>(*state ? kChecked : kUnchecked) : std::nullopt;
    }
  }
  return std::nullopt;
}

ProError Show(const DialogView& dialog, const StoredField& field, const std::wstring& value) {
  switch (field.kind) {
    case FieldKind::kInput:
      return dialog.SetInputValue(field.component, value);
    case FieldKind::kRadio: {
      std::string button = ToAnsi(value);
      // No button has such a name, and the host takes no longer one.
      if (button.size() > kLongestButtonName) return PRO_TK_E_NOT_FOUND;
      return dialog.SetRadioValue(field.component, std::move(button));
    }
    case FieldKind::kOption:
      return dialog.SetOptionValue(field.component, value);
    case FieldKind::kCheck:
      if (value != kChecked && value != kUnchecked) return PRO_TK_E_NOT_FOUND;
      return dialog.SetCheck(field.component, value == kChecked);
  }
  return PRO_TK_GENERAL_ERROR;
}

// An input panel knows any text.
FillResult ResultOf(FieldKind kind, ProError status) {
  if (Ok(status)) return FillResult::kTaken;
  const bool is_unknown = kind != FieldKind::kInput && status == PRO_TK_E_NOT_FOUND;
  return is_unknown ? FillResult::kUnknownValue : FillResult::kFailed;
}

void Log(const StoredField& field, const std::string& what) {
  LogFailure("the field " + std::string(field.component) + " " + what);
}

}  // namespace

void NoteSaved(const SaveTally& tally, const std::wstring& path) {
  if (tally.failed) {
    LogOutcome("settings not written");
    DisplayNote("Settings could not be written to %0w", path.c_str());
  } else if (tally.kept > 0) {
    DisplayNote("Settings saved, %0w left as they were: see the run log",
                std::to_wstring(tally.kept).c_str());
  } else {
    DisplayNote("Settings saved");
  }
}

void StoredFields::Fill(const DialogView& dialog, const StoredField& field,
                        const std::wstring& path) {
  Fill(dialog, field, TryReadSetting(FromAnsi(field.component).c_str(), field.key, path));
}

void StoredFields::Fill(const DialogView& dialog, const StoredField& field,
                        const std::optional<std::wstring>& stored) {
  Filling filling{stored, FillResult::kFailed, {}};
  ProError status = PRO_TK_NO_ERROR;
  if (stored) filling.result = ResultOf(field.kind, status = Show(dialog, field, *stored));
  filling.held = Shown(dialog, field);
  if (!stored) {
    Log(field, "was not filled: its setting cannot be read");
  } else if (!stored->empty() && !ShowsSetting(filling)) {
    Log(field, std::string("does not show its setting: the host answered ") + StatusName(status));
  }
  fillings_.insert_or_assign(field.component, std::move(filling));
}

const Filling* StoredFields::Find(const StoredField& field) const {
  const auto found = fillings_.find(std::string_view(field.component));
  return found == fillings_.end() ? nullptr : &found->second;
}

std::optional<std::wstring> StoredFields::Value(const DialogView& dialog,
                                                const StoredField& field) const {
  auto now = Shown(dialog, field);
  const Filling* const filling = Find(field);
  if (now && filling != nullptr && !MayUse(*filling, *now)) return std::nullopt;
  return now;
}

void StoredFields::Save(const DialogView& dialog, const StoredField& field,
                        const std::wstring& path, SaveTally* tally) const {
  const std::wstring section = FromAnsi(field.component);
  const Filling* const filling = Find(field);
  auto now = Shown(dialog, field);
  const bool is_read = now.has_value();
  if (now && filling != nullptr && !MaySave(*filling, *now)) now.reset();
  const bool is_radio = field.kind == FieldKind::kRadio;
  if (!now || (is_radio && now->empty())) {
    const auto stored = TryReadSetting(section.c_str(), field.key, path);
    const bool keeps_setting = !stored || !stored->empty();
    // Of a field that cannot be read nobody knows what the user made of it, not even an empty one.
    if (keeps_setting || !is_read) {
      ++tally->kept;
      Log(field, "was not saved: it does not show its setting, or cannot be read");
    }
    if (keeps_setting || !is_radio) return;
    now = std::wstring();
  }
  if (WriteSetting(section.c_str(), field.key, *now, path)) return;
  tally->failed = true;
  Log(field, "was not saved: the file cannot be written");
}

}  // namespace qm
