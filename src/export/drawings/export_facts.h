// A drawing as an export run needs it: what its files are called and which models they show. Each
// fact of a model is asked of the host once.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "export/drawings/export_name_rules.h"
#include "export/drawings/export_plan_rules.h"
#include "toolkit/model.h"

namespace qm {

struct ExportSolid {
  ProSolid handle = nullptr;
  // Its type and name, by which files of it are told from those of other models. Empty: not told,
  // or not needed.
  std::wstring identity;
};

// The handles live until the next erasing of models: nothing of this is kept from one drawing to
// the next.
struct ExportDrawing {
  std::wstring name;  // as listed
  ProDrawing drawing = nullptr;
  ExportSolid solid;                      // its first one
  std::vector<ExportSolid> sheet_solids;  // beside the facts' sheets
  DrawingFacts facts;
};

// Nothing when the drawing cannot be retrieved or has no models that could be collected: it is
// passed over.
std::optional<ExportDrawing> ReadDrawing(const std::wstring& name, const NamingRule& naming,
                                         const ExportOptions& options);

// Nothing, after a line in the run log, when the host does not tell.
std::optional<int> CountSheets(ProDrawing drawing);

}  // namespace qm
