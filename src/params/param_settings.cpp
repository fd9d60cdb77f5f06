// Loading and saving of the parameter dialog's fields. Each is a section named after the field.
#include "params/param_settings.h"

#include "frame/settings/config.h"

namespace qm {
namespace {

constexpr wchar_t kParamsFile[] = L"QmParams.ini";

constexpr const char* kKeywords = "InputKeyWords";
constexpr char kDecimals[] = "QmOutlineNum";
constexpr char kOrder[] = "QmOutlineOrder";
constexpr wchar_t kDecimalsSection[] = L"QmOutlineNum";
constexpr wchar_t kOrderSection[] = L"QmOutlineOrder";

struct InputField {
  const char* component;
  const wchar_t* section;
};
constexpr InputField kInputs[] = {
    {kKeywords, L"InputKeyWords"},
    {"outlinePname", L"outlinePname"},
    {"shSizePname", L"shSizePname"},
};

}  // namespace

void LoadParamSettings(const DialogView& dialog) {
  const std::wstring path = TextFolderConfigPath(kParamsFile);
  for (const InputField& input : kInputs) {
    const std::wstring value = ReadSetting(input.section, kContentKey, path);
    dialog.SetInputValue(input.component, value);
    // The two further tools start with the same keywords; theirs are not stored.
    if (input.component == kKeywords) dialog.SetInputValue("InputKeyWords2", value);
  }
  dialog.SetOptionValue(kDecimals, ReadSetting(kDecimalsSection, kContentKey, path));
  const std::wstring order = ReadSetting(kOrderSection, kContentKey, path);
  if (order == L"1" || order == L"0") dialog.SetCheck(kOrder, order == L"1");
}

void SaveParamSettings(const DialogView& dialog) {
  const std::wstring path = TextFolderConfigPath(kParamsFile);
  for (const InputField& input : kInputs) {
    const auto value = dialog.TryInputValue(input.component);
    if (value) WriteSetting(input.section, kContentKey, *value, path);
  }
  const auto decimals = dialog.TryOptionValue(kDecimals);
  if (decimals) WriteSetting(kDecimalsSection, kContentKey, *decimals, path);
  const auto order = dialog.CheckState(kOrder);
  if (order) WriteSetting(kOrderSection, kContentKey, *order ? L"1" : L"0", path);
}

}  // namespace qm
