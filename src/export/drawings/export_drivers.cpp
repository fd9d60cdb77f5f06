// The host's calls behind each format.
#include "export/drawings/export_drivers.h"

#include <windows.h>

#include "export/files/export_folder.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "frame/models/model_name.h"
#include "frame/settings/config.h"
#include "frame/text/letter_case.h"
#include "frame/text/text.h"
#include "toolkit/drawing.h"
#include "toolkit/export.h"
#include "toolkit/window.h"

namespace qm {
namespace {

constexpr wchar_t kProfile[] = L"qmdop";
constexpr wchar_t kProfileFile[] = L"qmdop.dop";

bool Told(const std::wstring& drawing, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(drawing, function, status);
  return Ok(status);
}

constexpr int kNoWindow = -1;

ProError OpenWindow(const std::wstring& name, int* window) {
  auto host_name = HostName::From(name);
  ProError status = host_name ? ProObjectwindowCreate(host_name->name, PRO_DRAWING, window)
                              : PRO_TK_LINE_TOO_LONG;
  if (Ok(status) && *window <= kNoWindow) status = PRO_TK_E_NOT_FOUND;
  Told(name, "ProObjectwindowCreate", status);
  return status;
}

// Nothing when the host does not tell.
std::optional<bool> IsDrawing(ProMdl model, const std::wstring& name) {
  ProMdlType type = PRO_MDL_UNUSED;
  if (model == nullptr || !Ok(ProMdlTypeGet(model, &type)) || type == PRO_MDL_UNUSED) {
    return std::nullopt;
  }
  const auto own = ModelName(model);
  if (!own) return std::nullopt;
  return type == PRO_MDL_DRAWING && EqualIgnoringCase(*own, name);
}

struct ShownDrawing {
  ProMdl drawing = nullptr;           // null: the window does not show it, or nobody knows, ...
  ProError status = PRO_TK_NO_ERROR;  // ... and why
  bool is_other = false;              // it shows another model
};

// Looked into, since 0 is a window as well, and the user's: another one than the drawing's would be
// exported and closed.
ShownDrawing LookInto(int window, const std::wstring& name) {
  ShownDrawing shown;
  ProMdl model = nullptr;
  shown.status = ProWindowMdlGet(window, &model);
  if (!Told(name, "ProWindowMdlGet", shown.status)) return shown;
  const auto is_drawing = IsDrawing(model, name);
  if (is_drawing.value_or(false)) {
    shown.drawing = model;
    return shown;
  }
  shown.is_other = is_drawing.has_value();
  shown.status = PRO_TK_E_NOT_FOUND;
  LogFailure(name, "a window for the drawing", shown.status);
  return shown;
}

void CloseWindow(int window, const std::wstring& name) {
  const ShownDrawing shown = LookInto(window, name);
  if (shown.is_other) return;
  ProError status = ProWindowDelete(window);
  // The current window cannot be deleted, only closed as the user does it: when it is known to show
  // the drawing.
  if (status == PRO_TK_BAD_CONTEXT && shown.drawing != nullptr) status = ProWindowCurrentClose();
  Told(name, "closing of the drawing's window", status);
}

}  // namespace

void ChooseDwgRelease() {
  std::wstring option = L"dwg_export_format";
  ProPath value = {};
  if (Ok(ProConfigoptGet(option.data(), value)) && value[0] != L'\0') return;
  std::wstring release = L"2000";
  const ProError status = ProConfigoptSet(option.data(), release.data());
  if (!Ok(status)) LogFailure(nullptr, "ProConfigoptSet", status);
}

bool SetPdfNumber(ProPDFOptions options, ProPDFOptiontype option, int value) {
  const ProError status = ProPDFoptionsIntpropertySet(options, option, value);
  if (!Ok(status)) LogFailure(nullptr, "ProPDFoptionsIntpropertySet", status);
  return Ok(status);
}

bool SetPdfFlag(ProPDFOptions options, ProPDFOptiontype option, bool value) {
  const ProError status =
      ProPDFoptionsBoolpropertySet(options, option, value ? PRO_B_TRUE : PRO_B_FALSE);
  if (!Ok(status)) LogFailure(nullptr, "ProPDFoptionsBoolpropertySet", status);
  return Ok(status);
}

ProError DrawingWriter::Write(const PlannedFile& file, ProPath path) {
  Begin(file.format);
  switch (file.format) {
    case ExportFormat::kDwg:
      return Write2d(PRO_DWG_FILE, file, path);
    case ExportFormat::kDxf:
      return Write2d(PRO_DXF_FILE, file, path);
    case ExportFormat::kPdf:
      return file.per_sheet ? WritePdfOfSheet(file.sheet, path) : WritePdf(path);
    case ExportFormat::kStep:
      return WriteModel(PRO_STEP_FILE, file, path);
    case ExportFormat::kIges:
      return WriteModel(PRO_IGES_3D_FILE, file, path);
  }
  return PRO_TK_BAD_INPUTS;
}

void DrawingWriter::ShowSheet(int sheet) const {
  Told(drawing_.name, "ProDrawingCurrentSheetSet",
       ProDrawingCurrentSheetSet(drawing_.drawing, sheet));
}

// Once for each format of the drawing.
void DrawingWriter::Begin(ExportFormat format) {
  if (begun_ == format) return;
  begun_ = format;
  pdf_options_.reset();
  if (format == ExportFormat::kDwg || format == ExportFormat::kDxf) ChooseDwgRelease();
  if (format == ExportFormat::kPdf) BeginPdf();
  CreateFolder(folder_ + RowOf(format).folder);
}

void DrawingWriter::BeginPdf() {
  const ProError status = ProPDFoptionsAlloc(pdf_options_.put());
  if (!Told(drawing_.name, "ProPDFoptionsAlloc", status) || !pdf_options_) return;
  SetPdfNumber(pdf_options_.get(), PRO_PDFOPT_FONT_STROKE, pdf_.strokes_fonts ? 1 : 0);
  if (pdf_.is_black) SetPdfNumber(pdf_options_.get(), PRO_PDFOPT_COLOR_DEPTH, PRO_PDF_CD_MONO);
  SetPdfFlag(pdf_options_.get(), PRO_PDFOPT_LAUNCH_VIEWER, false);
  SetPdfFlag(pdf_options_.get(), PRO_PDFOPT_PENTABLE, true);
  const bool is_per_sheet = options_.per_sheet && drawing_.facts.sheet_count.value_or(1) > 1;
  if (is_per_sheet) {
    SetPdfNumber(pdf_options_.get(), PRO_PDFOPT_SHEETS, PRO_PRINT_CURRENT_SHEET);
  }
}

ProError DrawingWriter::Write2d(int type, const PlannedFile& file, ProPath path) const {
  if (file.per_sheet) ShowSheet(file.sheet);
  // Deliberately freed after each file: a folder's worth of them would stay in the session.
  ExportData data;
  ProError status = Pro2dExportdataAlloc(data.put());
  if (!Ok(status) || !data) return Ok(status) ? PRO_TK_OUT_OF_MEMORY : status;
  // Without either the file would show another sheet than its name says.
  status = Pro2dExportdataSheetoptionSet(data.get(), PRO2DEXPORT_SELECTED);
  if (Ok(status)) status = Pro2dExportdataModelspacesheetSet(data.get(), file.sheet);
  return Ok(status) ? Pro2dExport(type, path, drawing_.drawing, data.get()) : status;
}

ProError DrawingWriter::WritePdf(ProPath path) const {
  // Without the options the host would open a viewer for each file.
  if (!pdf_options_) return PRO_TK_OUT_OF_MEMORY;
  int window = kNoWindow;
  const bool is_open = Ok(OpenWindow(drawing_.name, &window));
  const ProError status = ProPDFExport(drawing_.drawing, path, pdf_options_.get());
  if (is_open) CloseWindow(window, drawing_.name);
  return status;
}

// By the profile, which decides all that the options would. Deliberately the window stays open.
ProError DrawingWriter::WritePdfOfSheet(int sheet, ProPath path) const {
  ShowSheet(sheet);
  int window = kNoWindow;
  ProError status = OpenWindow(drawing_.name, &window);
  if (!Ok(status)) return status;
  Told(drawing_.name, "ProWindowCurrentSet", ProWindowCurrentSet(window));
  Told(drawing_.name, "ProWindowActivate", ProWindowActivate(window));
  const ShownDrawing opened = LookInto(window, drawing_.name);
  if (opened.drawing == nullptr) return opened.status;
  // The profile takes the current sheet: of another one the file would bear the wrong name.
  status = ProDrawingCurrentSheetSet(opened.drawing, sheet);
  if (!Told(drawing_.name, "ProDrawingCurrentSheetSet", status)) return status;
  CopyProfile();
  ProPath profile = {};
  std::copy(std::begin(kProfile), std::end(kProfile), profile);
  return ProPDFWithProfileExport(opened.drawing, path, profile);
}

ProError DrawingWriter::WriteModel(int type, const PlannedFile& file, ProPath path) const {
  ProSolid solid = drawing_.solid.handle;
  if (file.per_sheet) {
    ShowSheet(file.sheet);
    solid = drawing_.sheet_solids[static_cast<size_t>(file.sheet - 1)].handle;
  }
  return ProOutputFileWrite(solid, type, path, nullptr, nullptr, nullptr, nullptr);
}

// Into the working directory, where the host looks for it. One that is there already is the user's.
void DrawingWriter::CopyProfile() const {
  const std::wstring target = folder_ + kProfileFile;
  if (::CopyFileW(ConfigPath(kProfileFile).c_str(), target.c_str(), TRUE)) return;
  const DWORD error = ::GetLastError();
  if (error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS) return;
  LogEvent("the profile cannot be copied to " + ToUtf8(target) + ": Windows' error " +
           std::to_string(error));
}

}  // namespace qm
