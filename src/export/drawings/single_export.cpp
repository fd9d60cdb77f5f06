// Current model and folder.
#include "export/drawings/single_export.h"

#include "export/drawings/export_facts.h"
#include "export/drawings/export_name_rules.h"
#include "export/drawings/export_plan_rules.h"
#include "export/files/export_folder.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "frame/settings/config.h"
#include "frame/text/list_rules.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kDesktop[] = L"deskTop";
constexpr wchar_t kByUser[] = L"byUser";

std::optional<std::wstring> FolderBySetting(const std::wstring& value, std::wstring prompt,
                                            OtherSetting other) {
  if (value == kDesktop) return DesktopFolder();
  if (value == kByUser || other == OtherSetting::kAsks) return AskFolder(std::move(prompt));
  return std::nullopt;
}

}  // namespace

ProMdl ModelToExport() {
  ProMdl model = nullptr;
  if (Ok(ProMdlCurrentGet(&model)) && model != nullptr) return model;
  LogOutcome("nothing exported, no current model");
  return nullptr;
}

std::optional<std::wstring> ExportFolder(const wchar_t* section, std::wstring prompt,
                                         OtherSetting other) {
  const std::wstring value =
      WithoutBlanks(ReadSetting(section, kValueKey, ConfigPath(kConfigFile)));
  auto folder = FolderBySetting(value, std::move(prompt), other);
  if (!folder) LogOutcome("nothing exported, no folder");
  return folder;
}

SheetFiles FilesOfSheets(ProMdl drawing, const std::wstring& folder) {
  const auto name = ModelName(drawing);
  const auto count = CountSheets(drawing);
  const std::wstring path = PathIn(folder, name.value_or(std::wstring()));
  if (!name) return {{path}, "the drawing's name cannot be read"};
  if (!count) return {{path}, kNotCounted};
  if (*count < 2) return {{path}, nullptr};
  SheetFiles files;
  for (int number = 1; number <= *count; ++number) {
    files.paths.push_back(NumberedName(path, number));
  }
  return files;
}

}  // namespace qm
