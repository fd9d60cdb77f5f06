// Writes the files of one drawing through the host, in the order of the plan.
#pragma once

#include <optional>
#include <string>

#include "export/drawings/export_facts.h"
#include "export/drawings/export_plan_rules.h"
#include "toolkit/owners.h"

namespace qm {

struct PdfWishes {
  bool strokes_fonts = false;
  bool is_black = false;
};

// DWG and DXF files are of this release where the host's option names no other.
void ChooseDwgRelease();

// Logs a setting that an option of the file does not take.
bool SetPdfNumber(ProPDFOptions options, ProPDFOptiontype option, int value);
bool SetPdfFlag(ProPDFOptions options, ProPDFOptiontype option, bool value);

class DrawingWriter {
 public:
  // `folder` is the working directory, with a separator behind. All outlive the writer.
  DrawingWriter(const ExportDrawing& drawing, const ExportOptions& options, const PdfWishes& pdf,
                const std::wstring& folder)
      : drawing_(drawing), options_(options), pdf_(pdf), folder_(folder) {}

  // `path` is the file's full path. The host's answer, or that of the call before without which the
  // file would show something else.
  ProError Write(const PlannedFile& file, ProPath path);

  // Also for a sheet of which nothing is written.
  void ShowSheet(int sheet) const;

 private:
  void Begin(ExportFormat format);
  void BeginPdf();
  ProError Write2d(int type, const PlannedFile& file, ProPath path) const;
  ProError WritePdf(ProPath path) const;
  ProError WritePdfOfSheet(int sheet, ProPath path) const;
  ProError WriteModel(int type, const PlannedFile& file, ProPath path) const;
  void CopyProfile() const;

  const ExportDrawing& drawing_;
  const ExportOptions& options_;
  const PdfWishes& pdf_;
  const std::wstring& folder_;
  std::optional<ExportFormat> begun_;
  PdfOptions pdf_options_;
};

}  // namespace qm
