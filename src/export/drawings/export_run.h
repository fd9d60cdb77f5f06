// The run of QmExport: every chosen drawing in every chosen format.
#pragma once

#include <string>
#include <vector>

#include "export/drawings/export_drivers.h"

namespace qm {

// What the dialog says when the run begins.
struct ExportWishes {
  std::vector<std::wstring> drawings;  // in their order, each once
  NamingRule naming;
  ExportOptions options;
  PdfWishes pdf;
};

// A failure when files are missing.
ProError ExportDrawings(const ExportWishes& wishes);

}  // namespace qm
