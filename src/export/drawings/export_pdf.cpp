// QmExportPdf: as many PDF files as the current drawing has sheets, each written as "temp.pdf" in
// the working directory and renamed. Deliberately the current sheet is not changed between them.
#include "export/drawings/export_pdf.h"

#include <windows.h>

#include "export/drawings/export_drivers.h"
#include "export/drawings/single_export.h"
#include "export/files/export_record.h"
#include "frame/folders/known_folders.h"
#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/export.h"

namespace qm {
namespace {

constexpr wchar_t kTemporaryName[] = L"temp.pdf";
constexpr wchar_t kExtension[] = L".pdf";
// Deliberately that of the DWG files.
constexpr wchar_t kPrompt[] = L"请选择DWG文件导出位置";

bool MakeOptions(PdfOptions* options) {
  const ProError status = ProPDFoptionsAlloc(options->put());
  if (!Ok(status) || !*options) {
    LogFailure(nullptr, "ProPDFoptionsAlloc", status);
    return false;
  }
  SetPdfNumber(options->get(), PRO_PDFOPT_FONT_STROKE, PRO_PDF_USE_TRUE_TYPE_FONTS);
  SetPdfNumber(options->get(), PRO_PDFOPT_COLOR_DEPTH, PRO_PDF_CD_MONO);
  SetPdfFlag(options->get(), PRO_PDFOPT_LAUNCH_VIEWER, false);
  SetPdfFlag(options->get(), PRO_PDFOPT_PENTABLE, true);
  return true;
}

// Deliberately in the code page: a name that it lacks characters of stays where it is. Deliberately
// a file that has the name is replaced: yesterday's would pass for today's.
bool Rename(const std::wstring& from, const std::wstring& to) {
  const std::string stays = ToUtf8(from) + " is not renamed to " + ToUtf8(to) + ": ";
  const auto narrow_from = ToAnsiExactly(from);
  const auto narrow_to = ToAnsiExactly(to);
  if (!narrow_from || !narrow_to) {
    LogEvent(stays + "the code page lacks characters of the name");
    return false;
  }
  constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED;
  if (::MoveFileExA(narrow_from->c_str(), narrow_to->c_str(), kFlags)) return true;
  LogEvent(stays + "Windows' error " + std::to_string(::GetLastError()));
  return false;
}

ProError WritePdf(ProMdl drawing, ProPDFOptions options, const std::wstring& temporary,
                  const std::wstring& target) {
  ProPath file = {};
  if (!FillFixedText(temporary, file)) return PRO_TK_LINE_TOO_LONG;
  const auto before = StampOf(temporary);
  const ProError status = ProPDFExport(drawing, file, options);
  const auto after = StampOf(temporary);
  // One of before is not renamed for it.
  if (!after || after == before) return Ok(status) ? PRO_TK_E_NOT_FOUND : status;
  return Rename(temporary, target) ? status : PRO_TK_CANT_WRITE;
}

}  // namespace

ProError QmExportPdf() {
  const ProMdl drawing = ModelToExport();
  if (drawing == nullptr) return PRO_TK_E_NOT_FOUND;
  const auto folder = ExportFolder(L"QmExportPdfDIr", kPrompt, OtherSetting::kEndsCommand);
  if (!folder) return PRO_TK_USER_ABORT;
  SheetFiles files = FilesOfSheets(drawing, *folder);
  const auto working = CurrentFolder();
  if (!working) files.trouble = "the working directory is not known";
  PdfOptions options;
  if (!MakeOptions(&options)) files.trouble = "the options of the files cannot be made";
  const std::wstring temporary = PathIn(working.value_or(std::wstring()), kTemporaryName);
  ExportRecord record;
  for (const std::wstring& path : files.paths) {
    const std::wstring target = path + kExtension;
    if (files.trouble != nullptr) {
      record.AddUnwritten({target, {}, {}}, files.trouble);
    } else {
      record.Write({target, {}, {}},
                   [&] { return WritePdf(drawing, options.get(), temporary, target); });
    }
  }
  return record.Tell();
}

}  // namespace qm
