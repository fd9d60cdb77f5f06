// Reads a drawing, its sheets and the models on them.
#include "export/drawings/export_facts.h"

#include "frame/messages/run_log.h"
#include "frame/models/handle_index.h"
#include "frame/models/model_name.h"
#include "frame/models/parameter_text.h"
#include "frame/models/retrieve.h"
#include "frame/text/fixed_text.h"
#include "toolkit/drawing.h"
#include "toolkit/drawing_view.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

constexpr int kFirst = 1;  // sheet

bool Told(ProMdl model, const char* function, ProError status) {
  if (!Ok(status)) LogFailure(model, function, status);
  return Ok(status);
}

ProSolid FirstSolid(ProDrawing drawing) {
  HostArray<ProSolid> solids;
  const ProError status = ProDrawingSolidsCollect(drawing, solids.put());
  if (Told(drawing, "ProDrawingSolidsCollect", status) && solids.size() > 0) return solids[0];
  return nullptr;
}

std::optional<std::wstring> SheetSize(ProDrawing drawing, int sheet) {
  ProName size = {};
  ProMatrix transform = {};
  const ProError status = ProDrawingSheetTrfGet(drawing, sheet, size, transform);
  if (Ok(status) && size[0] != L'\0') return std::wstring(FixedText(size));
  LogFailure(drawing, "ProDrawingSheetTrfGet", status);
  return std::nullopt;
}

// The model of the first view, in the order of their collection, that lies on each sheet; null for
// a sheet without views. Nothing when there are no views at all.
std::optional<std::vector<ProSolid>> SolidsOfSheets(ProDrawing drawing, int sheet_count) {
  HostArray<ProView> views;
  const ProError status = ProDrawingViewsCollect(drawing, views.put());
  const int view_count = Ok(status) ? views.size() : 0;
  if (view_count == 0) {
    LogFailure(drawing, "ProDrawingViewsCollect", status);
    return std::nullopt;
  }
  std::vector<ProSolid> solids(static_cast<size_t>(sheet_count), nullptr);
  std::vector<bool> is_met(solids.size(), false);
  for (int i = 0; i < view_count; ++i) {
    int sheet = 0;
    Told(drawing, "ProDrawingViewSheetGet", ProDrawingViewSheetGet(drawing, views[i], &sheet));
    if (sheet < kFirst || sheet > sheet_count || is_met[static_cast<size_t>(sheet - kFirst)])
      continue;
    is_met[static_cast<size_t>(sheet - kFirst)] = true;
    ProSolid solid = nullptr;
    const ProError answer = ProDrawingViewSolidGet(drawing, views[i], &solid);
    if (Told(drawing, "ProDrawingViewSolidGet", answer)) {
      solids[static_cast<size_t>(sheet - kFirst)] = solid;
    }
  }
  return solids;
}

// What names are made of, and what a model's own files are called.
struct ModelFacts {
  std::optional<std::wstring> name;
  std::wstring identity;
  std::vector<std::optional<std::wstring>> parameters;
};

// The facts of a drawing's models, each read once, on however many sheets it is shown.
class ModelReader {
 public:
  ModelReader(const NamingRule& naming, const ExportOptions& options)
      : naming_(naming),
        reads_identity_(options.WritesModels()),
        reads_name_(reads_identity_ || (options.per_sheet && naming.Uses(NameToken::kName))) {}

  // Valid until the next call.
  const ModelFacts& Of(ProSolid solid) {
    const auto [number, is_new] = index_.Insert(solid);
    if (is_new) facts_.push_back(Read(solid));
    return facts_[number];
  }

 private:
  ModelFacts Read(ProSolid solid) const {
    ModelFacts facts;
    if (reads_name_) facts.name = ModelName(solid);
    if (reads_identity_ && facts.name) facts.identity = Identity(solid, *facts.name);
    for (ParameterText& read : ReadParameterTexts(solid, naming_.parameters)) {
      facts.parameters.push_back(std::move(read.text));
    }
    return facts;
  }

  static std::wstring Identity(ProSolid solid, const std::wstring& name) {
    ProMdlType type = PRO_MDL_UNUSED;
    const ProError status = ProMdlTypeGet(solid, &type);
    if (!Told(solid, "ProMdlTypeGet", status) || type == PRO_MDL_UNUSED) return {};
    std::wstring identity = std::to_wstring(static_cast<int>(type));
    identity += L' ';
    return identity.append(name);
  }

  const NamingRule& naming_;
  const bool reads_identity_;
  const bool reads_name_;
  HandleIndex index_;
  std::vector<ModelFacts> facts_;
};

class DrawingReader {
 public:
  DrawingReader(const NamingRule& naming, const ExportOptions& options, ExportDrawing* drawing)
      : naming_(naming), options_(options), drawing_(*drawing), models_(naming, options) {}

  void Read() {
    const ModelFacts& first = models_.Of(drawing_.solid.handle);
    drawing_.solid.identity = first.identity;
    drawing_.facts.base_name = FileName(naming_, {Size(kFirst), drawing_.name, first.parameters});
    drawing_.facts.sheet_count = CountSheets(drawing_.drawing);
    const int count = drawing_.facts.sheet_count.value_or(0);
    if (!NeedsViews(options_, count)) return;
    const auto solids = SolidsOfSheets(drawing_.drawing, count);
    if (!solids) return;
    drawing_.facts.sheets.emplace();
    for (int sheet = kFirst; sheet <= count; ++sheet) {
      AddSheet(sheet, (*solids)[static_cast<size_t>(sheet - kFirst)]);
    }
  }

 private:
  std::optional<std::wstring> Size(int sheet) {
    if (!naming_.Uses(NameToken::kSheetSize)) return std::nullopt;
    return SheetSize(drawing_.drawing, sheet);
  }

  void AddSheet(int sheet, ProSolid solid) {
    SheetFacts facts;
    ExportSolid shown{solid, {}};
    if (solid != nullptr) {
      const ModelFacts& model = models_.Of(solid);
      facts = {true, FileName(naming_, {Size(sheet), model.name, model.parameters}), model.name};
      shown.identity = model.identity;
    }
    drawing_.facts.sheets->push_back(std::move(facts));
    drawing_.sheet_solids.push_back(std::move(shown));
  }

  const NamingRule& naming_;
  const ExportOptions& options_;
  ExportDrawing& drawing_;
  ModelReader models_;
};

}  // namespace

std::optional<int> CountSheets(ProDrawing drawing) {
  int count = 0;
  const ProError status = ProDrawingSheetsCount(drawing, &count);
  if (!Told(drawing, "ProDrawingSheetsCount", status) || count < kFirst) return std::nullopt;
  return count;
}

std::optional<ExportDrawing> ReadDrawing(const std::wstring& name, const NamingRule& naming,
                                         const ExportOptions& options) {
  ExportDrawing drawing;
  drawing.name = name;
  drawing.drawing = RetrieveModel(name, PRO_MDL_DRAWING);
  if (drawing.drawing == nullptr) return std::nullopt;
  drawing.solid.handle = FirstSolid(drawing.drawing);
  if (drawing.solid.handle == nullptr) return std::nullopt;
  DrawingReader(naming, options, &drawing).Read();
  return drawing;
}

}  // namespace qm
