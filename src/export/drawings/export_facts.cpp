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

// What the first view of a sheet shows, in the order of their collection.
struct ShownOnSheet {
  bool has_view = false;
  ProSolid solid = nullptr;  // null: the host does not tell, or there is no view
};

ProSolid SolidOfView(ProDrawing drawing, ProView view) {
  ProSolid solid = nullptr;
  const ProError status = ProDrawingViewSolidGet(drawing, view, &solid);
  if (Ok(status) && solid != nullptr) return solid;
  LogFailure(drawing, "ProDrawingViewSolidGet", status);
  return nullptr;
}

// Nothing when there are no views at all, or when nobody knows where one lies: it may be the first
// one of any sheet.
std::optional<std::vector<ShownOnSheet>> ShownOnSheets(ProDrawing drawing, int sheet_count) {
  HostArray<ProView> views;
  const ProError status = ProDrawingViewsCollect(drawing, views.put());
  const int view_count = Ok(status) ? views.size() : 0;
  if (view_count == 0) {
    LogFailure(drawing, "ProDrawingViewsCollect", status);
    return std::nullopt;
  }
  std::vector<ShownOnSheet> sheets(static_cast<size_t>(sheet_count));
  for (int i = 0; i < view_count; ++i) {
    int number = 0;
    const ProError answer = ProDrawingViewSheetGet(drawing, views[i], &number);
    if (!Told(drawing, "ProDrawingViewSheetGet", answer)) return std::nullopt;
    if (number < kFirst || number > sheet_count) continue;
    ShownOnSheet& sheet = sheets[static_cast<size_t>(number - kFirst)];
    if (!sheet.has_view) sheet = {true, SolidOfView(drawing, views[i])};
  }
  return sheets;
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
        reads_parameters_(options.NamesFiles()),
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
    if (!reads_parameters_) return facts;
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
  const bool reads_parameters_;
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
    if (options_.NamesFiles()) {
      drawing_.facts.base_name = FileName(naming_, {Size(kFirst), drawing_.name, first.parameters});
    }
    drawing_.facts.sheet_count = CountSheets(drawing_.drawing);
    const int count = drawing_.facts.sheet_count.value_or(0);
    if (!NeedsViews(options_, count)) return;
    const auto shown = ShownOnSheets(drawing_.drawing, count);
    if (!shown) return;
    drawing_.facts.sheets.emplace();
    for (int sheet = kFirst; sheet <= count; ++sheet) {
      AddSheet(sheet, (*shown)[static_cast<size_t>(sheet - kFirst)]);
    }
  }

 private:
  std::optional<std::wstring> Size(int sheet) {
    if (!naming_.Uses(NameToken::kSheetSize)) return std::nullopt;
    return SheetSize(drawing_.drawing, sheet);
  }

  void AddSheet(int sheet, const ShownOnSheet& shown) {
    SheetFacts facts;
    facts.has_view = shown.has_view;
    ExportSolid solid{shown.solid, {}};
    if (shown.solid != nullptr) {
      const ModelFacts& model = models_.Of(shown.solid);
      if (options_.NamesFiles()) {
        facts.name = FileName(naming_, {Size(sheet), model.name, model.parameters});
      }
      facts.model = model.name;
      solid.identity = model.identity;
    }
    drawing_.facts.sheets->push_back(std::move(facts));
    drawing_.sheet_solids.push_back(std::move(solid));
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
