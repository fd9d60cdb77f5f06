// Writes the files one after the other.
#include "export/components/component_export.h"

#include <algorithm>

#include "export/components/component_file_rules.h"
#include "export/files/export_notes.h"
#include "export/files/export_record.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "toolkit/export.h"

namespace qm {
namespace {

constexpr char kStopped[] = "the run was stopped";
constexpr char kTooLong[] = "the path is too long";

struct PlannedComponent {
  const ComponentModel* model;
  std::wstring path;
};

// Names count beside all components, so that a part and an assembly of one name never share a file,
// however they are chosen.
std::vector<PlannedComponent> Plan(const ComponentModels& components,
                                   const std::vector<bool>& chosen, const std::wstring& folder,
                                   const ComponentFormat& format) {
  std::vector<NamedComponent> named;
  for (const ComponentModel& model : components.models) {
    named.push_back({model.name, model.is_assembly});
  }
  const std::vector<std::wstring> files = ComponentFileNames(named, format.extension);
  std::vector<PlannedComponent> plan;
  for (size_t i = 0; i < files.size(); ++i) {
    if (!chosen[i]) continue;
    plan.push_back({&components.models[i], PathIn(folder, files[i])});
    TellUnfitFile(plan.back().path, files[i]);
  }
  return plan;
}

// Why the run ends with this file; null when it goes on.
const wchar_t* Write(const PlannedComponent& planned, const ComponentFormat& format,
                     ExportRecord* record) {
  const ExportRecord::File file = {planned.path, {}, {}};
  ProPath path = {};
  if (!FillFixedText(planned.path, path)) {
    record->AddUnwritten(file, kTooLong);
    return nullptr;
  }
  const ProMdl model = planned.model->handle;
  const FileOutcome outcome = record->Write(file, [&] { return format.write(model, path); });
  return format.objection ? format.objection(model, IsThere(outcome)) : nullptr;
}

}  // namespace

std::function<ProError(ProMdl, ProPath)> OutputFileWriter(int type) {
  return [type](ProMdl model, ProPath file) {
    return ProOutputFileWrite(model, type, file, nullptr, nullptr, nullptr, nullptr);
  };
}

ProError ExportComponents(const ComponentModels& components, const std::vector<bool>& chosen,
                          const std::wstring& folder, const ComponentFormat& format) {
  const std::vector<PlannedComponent> plan = Plan(components, chosen, folder, format);
  LogCount("models", static_cast<long long>(plan.size()));
  ExportRecord record;
  const wchar_t* objection = nullptr;
  for (size_t i = 0; i < plan.size(); ++i) {
    if (objection != nullptr) {
      record.AddUnwritten({plan[i].path, {}, {}}, kStopped);
      continue;
    }
    TellProgress(i + 1, plan.size(), plan[i].model->name);
    objection = Write(plan[i], format, &record);
  }
  const ProError status = record.Tell();
  NoteLeftOut(components.left_out);
  ShowMessage(objection != nullptr ? objection : format.done);
  return status;
}

ProError ExportAllComponents(const ComponentModels& components, const std::wstring& folder,
                             const ComponentFormat& format) {
  return ExportComponents(components, std::vector<bool>(components.models.size(), true), folder,
                          format);
}

}  // namespace qm
