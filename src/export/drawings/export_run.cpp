// Goes through the drawings.
#include "export/drawings/export_run.h"

#include "export/files/export_notes.h"
#include "export/files/export_record.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/message_area.h"
#include "frame/messages/message_box.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"

namespace qm {
namespace {

constexpr wchar_t kDone[] = L"\t工程图批量导出已完成";
// Drawings after which the session is cleared of what is not displayed.
constexpr size_t kClearingStep = 30;

// " (drawing a, sheet 2)"
std::wstring Origin(const std::wstring& drawing, const PlannedFile& file) {
  std::wstring text = L" (drawing " + drawing;
  if (file.sheet > 0) text += L", sheet " + std::to_wstring(file.sheet);
  return text + L")";
}

class ExportRun {
 public:
  ExportRun(const ExportWishes& wishes, std::wstring folder)
      : wishes_(wishes), folder_(std::move(folder)) {}

  // False when the drawing was passed over.
  bool Export(const std::wstring& name) {
    const auto drawing = ReadDrawing(name, wishes_.naming, wishes_.options);
    if (!drawing) {
      PassOver(name, "the drawing cannot be retrieved, or its models cannot be collected");
      return false;
    }
    const std::vector<PlannedFile> files = PlanFiles(drawing->facts, wishes_.options);
    TellUnfitNames(files);
    DrawingWriter writer(*drawing, wishes_.options, wishes_.pdf, folder_);
    for (const PlannedFile& file : files) WriteFile(*drawing, file, &writer);
    return true;
  }

  void PassOver(const std::wstring& name, const char* reason) {
    for (const PlannedFile& file : PlanNothing(wishes_.options, reason)) {
      record_.AddUnwritten({PathOf(file), {}, Origin(name, file)}, reason);
    }
  }

  ProError Tell() { return record_.Tell(); }

 private:
  // Before anything is written. The host is asked for most of these files as well: it may know a
  // way.
  void TellUnfitNames(const std::vector<PlannedFile>& files) const {
    for (const PlannedFile& file : files) {
      if (!file.name.empty()) TellUnfitFile(PathOf(file), file.name);
    }
  }

  std::wstring PathOf(const PlannedFile& file) const {
    return folder_ + RowOf(file.format).folder + file.name;
  }

  void WriteFile(const ExportDrawing& drawing, const PlannedFile& file, DrawingWriter* writer) {
    const ExportRecord::File record = {PathOf(file), ModelOf(drawing, file),
                                       Origin(drawing.name, file)};
    if (file.plan == FilePlan::kCannot) return record_.AddUnwritten(record, file.reason);
    if (file.plan == FilePlan::kNotMeant) {
      writer->ShowSheet(file.sheet);
      return LogEvent(ToUtf8(record.path + record.of) + ": nothing to write, " + file.reason);
    }
    ProPath path = {};
    if (!FillFixedText(record.path, path)) {
      return record_.AddUnwritten(record, "the path is too long");
    }
    record_.Write(record, [&] { return writer->Write(file, path); });
  }

  static std::wstring ModelOf(const ExportDrawing& drawing, const PlannedFile& file) {
    if (!IsOfModel(file.format)) return {};
    if (!file.per_sheet) return drawing.solid.identity;
    return drawing.sheet_solids[static_cast<size_t>(file.sheet - 1)].identity;
  }

  const ExportWishes& wishes_;
  const std::wstring folder_;
  ExportRecord record_;
};

// No handle of before is used after it.
void ClearSession() {
  const ProError status = ProMdlEraseNotDisplayed();
  if (!Ok(status)) LogFailure(nullptr, "ProMdlEraseNotDisplayed", status);
}

}  // namespace

ProError ExportDrawings(const ExportWishes& wishes) {
  const auto folder = CurrentFolder();
  ExportRun run(wishes, folder.value_or(std::wstring()));
  const size_t count = wishes.drawings.size();
  LogCount("drawings", static_cast<long long>(count));
  for (size_t position = 0; position < count; ++position) {
    const std::wstring& name = wishes.drawings[position];
    if (!folder) {
      run.PassOver(name, "the working directory is not known");
      continue;
    }
    TellProgress(position + 1, count, name);
    // Long runs would fill the session. Deliberately not after a drawing that was passed over.
    if (run.Export(name) && position % kClearingStep == 0) ClearSession();
  }
  const ProError status = run.Tell();
  ShowMessage(kDone);
  return status;
}

}  // namespace qm
