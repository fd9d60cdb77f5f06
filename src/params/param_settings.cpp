// Loading and saving of the parameter dialog's fields. Each is a section named after the field.
#include "params/param_settings.h"

namespace qm {
namespace {

constexpr wchar_t kParamsFile[] = L"QmParams.ini";

// In the order of a new file's sections.
constexpr StoredField kStored[] = {kKeywords, kOrder, kDecimals, kOutlineName, kSheetSizeName};

}  // namespace

void LoadParamSettings(const DialogView& dialog, StoredFields* fields) {
  const std::wstring path = TextFolderConfigPath(kParamsFile);
  const auto keywords = TryReadSetting(L"InputKeyWords", kContentKey, path);
  for (const StoredField& field : {kKeywords, kToolKeywords}) fields->Fill(dialog, field, keywords);
  for (const StoredField& field : {kOutlineName, kSheetSizeName, kDecimals, kOrder}) {
    fields->Fill(dialog, field, path);
  }
}

void SaveParamSettings(const DialogView& dialog, const StoredFields& fields) {
  const std::wstring path = TextFolderConfigPath(kParamsFile);
  SaveTally tally;
  for (const StoredField& field : kStored) fields.Save(dialog, field, path, &tally);
  NoteSaved(tally, path);
}

}  // namespace qm
