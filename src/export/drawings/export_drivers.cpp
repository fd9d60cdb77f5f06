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

struct DrawingInWindow {
  int window = -1;
  ProMdl drawing = nullptr;           // null: there is no such window, ...
  ProError status = PRO_TK_NO_ERROR;  // ... and why
};

bool IsDrawing(ProMdl model, const std::wstring& name) {
  ProMdlType type = PRO_MDL_UNUSED;
  if (model == nullptr || !Ok(ProMdlTypeGet(model, &type)) || type != PRO_MDL_DRAWING) return false;
  const auto own = ModelName(model);
  return own && EqualIgnoringCase(*own, name);
}

// Looked into, since 0 is a window as well, and the user's: another one than the drawing's would be
// exported and closed.
DrawingInWindow OpenWindow(const std::wstring& name) {
  DrawingInWindow opened;
  auto host_name = HostName::From(name);
  if (!host_name) {
    opened.status = PRO_TK_LINE_TOO_LONG;
    return opened;
  }
  opened.status = ProObjectwindowCreate(host_name->name, PRO_DRAWING, &opened.window);
  if (!Told(name, "ProObjectwindowCreate", opened.status)) return opened;
  ProMdl shown = nullptr;
  opened.status = ProWindowMdlGet(opened.window, &shown);
  if (!Told(name, "ProWindowMdlGet", opened.status)) return opened;
  if (IsDrawing(shown, name)) {
    opened.drawing = shown;
  } else {
    opened.status = PRO_TK_E_NOT_FOUND;
    LogFailure(name, "a window for the drawing", opened.status);
  }
  return opened;
}

// The current window cannot be deleted, only closed as the user does it.
void CloseWindow(const std::wstring& name, int window) {
  ProError status = ProWindowDelete(window);
  if (status == PRO_TK_BAD_CONTEXT) status = ProWindowCurrentClose();
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
  const DrawingInWindow opened = OpenWindow(drawing_.name);
  const ProError status = ProPDFExport(drawing_.drawing, path, pdf_options_.get());
  if (opened.drawing != nullptr) CloseWindow(drawing_.name, opened.window);
  return status;
}

// By the profile, which decides all that the options would. Deliberately the window stays open.
ProError DrawingWriter::WritePdfOfSheet(int sheet, ProPath path) const {
  ShowSheet(sheet);
  const DrawingInWindow opened = OpenWindow(drawing_.name);
  if (opened.drawing == nullptr) return opened.status;
  Told(drawing_.name, "ProWindowCurrentSet", ProWindowCurrentSet(opened.window));
  Told(drawing_.name, "ProWindowActivate", ProWindowActivate(opened.window));
  // The profile takes the current sheet: of another one the file would bear the wrong name.
  const ProError status = ProDrawingCurrentSheetSet(opened.drawing, sheet);
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
