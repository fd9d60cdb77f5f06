// Formats and sheets into files.
#include "export/drawings/export_plan_rules.h"

#include <algorithm>

#include "export/drawings/export_name_rules.h"
#include "export/files/file_name_rules.h"

namespace qm {
namespace {

constexpr char kNoViews[] = "its views cannot be collected, or it has none";
constexpr char kNoModelName[] = "the sheet's model or its name cannot be read";
constexpr char kNoView[] = "no view lies on the sheet";
constexpr char kElsewhere[] = "Windows cannot hold the name";

class Planner {
 public:
  Planner(const DrawingFacts& drawing, const ExportOptions& options)
      : drawing_(drawing), options_(options) {}

  std::vector<PlannedFile> Plan() && {
    for (const ExportFormatRow& row : kExportFormats) {
      if (options_.Writes(row.format)) PlanFormat(row.format);
    }
    for (PlannedFile& file : files_) {
      if (file.plan == FilePlan::kWrite && IsElsewhere(file.name)) {
        file.plan = FilePlan::kCannot;
        file.reason = kElsewhere;
      }
    }
    return std::move(files_);
  }

 private:
  void PlanFormat(ExportFormat format) {
    const bool is_whole =
        !options_.per_sheet && (IsOfModel(format) || format == ExportFormat::kPdf);
    if (is_whole) return Add(format, drawing_.base_name, 0);
    if (!drawing_.sheet_count) {
      Add(format, drawing_.base_name, 0);
      return Refuse(kNotCounted);
    }
    const int count = *drawing_.sheet_count;
    if (count == 1 && !IsOfModel(format)) {
      return Add(format, drawing_.base_name, format == ExportFormat::kPdf ? 0 : 1);
    }
    is_stopped_ = is_stopped_ || (options_.per_sheet && !drawing_.sheets);
    for (int sheet = 1; sheet <= count; ++sheet) PlanSheet(format, sheet);
  }

  void PlanSheet(ExportFormat format, int sheet) {
    if (!options_.per_sheet || is_stopped_) {
      Add(format, NumberedName(drawing_.base_name, sheet), sheet);
      if (is_stopped_) Refuse(kNoViews);
      return;
    }
    const SheetFacts& facts = (*drawing_.sheets)[static_cast<size_t>(sheet - 1)];
    if (!IsOfModel(format)) {
      Add(format, facts.name.value_or(NumberedName(drawing_.base_name, sheet)), sheet);
    } else {
      Add(format, facts.model.value_or(std::wstring()), sheet);
      if (!facts.model) Refuse(kNoModelName);
      if (!facts.has_view) Refuse(kNoView, FilePlan::kNotMeant);
    }
    files_.back().per_sheet = true;
  }

  void Add(ExportFormat format, const std::wstring& name, int sheet) {
    PlannedFile& file = files_.emplace_back();
    file.format = format;
    file.name = name + RowOf(format).extension;
    file.sheet = sheet;
  }

  // The file added last. Its name is not what it would have been called.
  void Refuse(const char* reason, FilePlan plan = FilePlan::kCannot) {
    files_.back().plan = plan;
    files_.back().reason = reason;
    files_.back().name.clear();
  }

  const DrawingFacts& drawing_;
  const ExportOptions& options_;
  bool is_stopped_ = false;
  std::vector<PlannedFile> files_;
};

}  // namespace

std::vector<std::wstring> InOrder(std::vector<std::wstring> names) {
  std::ranges::sort(names);
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

bool ExportOptions::WritesDrawings() const {
  return std::ranges::any_of(kExportFormats, [this](const ExportFormatRow& row) {
    return !IsOfModel(row.format) && Writes(row.format);
  });
}

bool ExportOptions::WritesModels() const {
  return std::ranges::any_of(kExportFormats, [this](const ExportFormatRow& row) {
    return IsOfModel(row.format) && Writes(row.format);
  });
}

bool NeedsViews(const ExportOptions& options, int sheet_count) {
  return options.per_sheet &&
         (options.WritesModels() || (sheet_count > 1 && options.WritesDrawings()));
}

std::vector<PlannedFile> PlanFiles(const DrawingFacts& drawing, const ExportOptions& options) {
  return Planner(drawing, options).Plan();
}

std::vector<PlannedFile> PlanNothing(const ExportOptions& options, const char* reason) {
  std::vector<PlannedFile> files;
  for (const ExportFormatRow& row : kExportFormats) {
    if (!options.Writes(row.format)) continue;
    files.push_back({row.format, {}, 0, false, FilePlan::kCannot, reason});
  }
  return files;
}

}  // namespace qm
