// Which files a drawing gives: decided from its facts before the first of them is written.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace qm {

// In the order in which they are written.
enum class ExportFormat { kDwg, kDxf, kPdf, kStep, kIges };

// The drawings of a run: in ascending order, each once.
std::vector<std::wstring> InOrder(std::vector<std::wstring> names);

struct ExportFormatRow {
  ExportFormat format;
  const char* check;      // the button in the dialog
  const wchar_t* folder;  // below the working directory
  const wchar_t* extension;
};
// clang-format off
inline constexpr std::array<ExportFormatRow, 5> kExportFormats = {{
    {ExportFormat::kDwg,  "DWGCheck", L"DWG\\", L".dwg"},
    {ExportFormat::kDxf,  "DXFCheck", L"DXF\\", L".dxf"},
    {ExportFormat::kPdf,  "PDFCheck", L"PDF\\", L".pdf"},
    {ExportFormat::kStep, "STPCheck", L"STP\\", L".stp"},
    {ExportFormat::kIges, "IGSCheck", L"IGS\\", L".igs"},
}};
// clang-format on
constexpr const ExportFormatRow& RowOf(ExportFormat format) {
  return kExportFormats[static_cast<std::size_t>(format)];
}
// STEP and IGES show the model, the others the drawing.
constexpr bool IsOfModel(ExportFormat format) {
  return format == ExportFormat::kStep || format == ExportFormat::kIges;
}

struct ExportOptions {
  std::array<bool, kExportFormats.size()> formats{};  // those to be written
  bool per_sheet = false;  // a file for each sheet, named after the model on it

  bool Writes(ExportFormat format) const { return formats[static_cast<std::size_t>(format)]; }
  bool WritesDrawings() const;
  bool WritesModels() const;
  // Whether a file is named by the naming rule. Those of the models on the sheets are not.
  bool NamesFiles() const { return !per_sheet || WritesDrawings(); }
};

// Whether the models on the sheets decide names or contents.
bool NeedsViews(const ExportOptions& options, int sheet_count);

// A sheet of a drawing that is written per sheet.
struct SheetFacts {
  bool has_view = false;
  std::optional<std::wstring> name;   // by the naming rule; nothing: no model to name it after
  std::optional<std::wstring> model;  // the model's name; nothing: not told
};

struct DrawingFacts {
  std::wstring base_name;
  std::optional<int> sheet_count;  // nothing: not told
  // Sheet 1 first; nothing: not needed, or the drawing's views cannot be collected, or it has none.
  std::optional<std::vector<SheetFacts>> sheets;
};

enum class FilePlan {
  kWrite,
  kCannot,    // expected, but something that it needs is not known
  kNotMeant,  // the sheet shows no model: there is nothing to write
};

struct PlannedFile {
  ExportFormat format = ExportFormat::kDwg;
  std::wstring name;       // with its extension; empty where it is not known
  int sheet = 0;           // 0: the whole drawing, or its first model
  bool per_sheet = false;  // the sheet is made the current one, and its model counts
  FilePlan plan = FilePlan::kWrite;
  const char* reason = nullptr;  // why it is not written
};

inline constexpr char kNotCounted[] = "its sheets cannot be counted";

// In the order of writing. Deliberately a drawing whose views cannot be collected loses the format
// that needs them and all that come after it, those before it stay.
std::vector<PlannedFile> PlanFiles(const DrawingFacts& drawing, const ExportOptions& options);

// Those of a drawing of which nothing is known: one for each format.
std::vector<PlannedFile> PlanNothing(const ExportOptions& options, const char* reason);

}  // namespace qm
