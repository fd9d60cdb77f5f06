// Host functions for making drawings of templates, and for their sheets, models, scales and
// formats.
#include "workbench/api/drawing/drawing_shared.h"
#include "workbench/api/matrix.h"
#include "workbench/api/model_record.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

constexpr int kKnownCreateOptions =
    PRO_DWGCREATE_DISPLAY_DRAWING | PRO_DWGCREATE_SHOW_ERRORS | PRO_DWGCREATE_WRITE_ERRORS;
constexpr int kErrorRecordSize = 256;  // nobody may look into one

// The model that a record of the plug-in's stands for.
struct RecordedModelIn : RecordIn<ProMdldata> {
  explicit RecordedModelIn(ProMdldata* data) : RecordIn(data, "model record") {}
  Model& Look(const Call& call) const {
    const ModelRecordText text = ReadRecord(call, RecordIn::Look(call));
    const auto kind = KindFromExtension(text.extension);
    Model* const model = kind ? call.host.session.Find({text.name, *kind}) : nullptr;
    if (model == nullptr) call.Fail("a record that names no model in session");
    return *model;
  }
};

bool IsTaken(const Session& session, const ModelName& name) {
  return const_cast<Session&>(session).Find(name) != nullptr ||
         !FolderIndex(session.working_directory()).Newest(name).empty();
}

std::optional<Model> TemplateOf(const Call& call, const std::filesystem::path& file) {
  try {
    return call.host.session.Template(file);
  } catch (const ModelFileError& error) {
    call.host.events.Add(FileProblem{error.what()});
    return std::nullopt;
  }
}

Model& NewDrawing(Session& session, const ModelName& name, const Model& pattern, Model& model) {
  const auto& from = *pattern.As<DrawingContent>();
  if (!from.views.empty()) throw NotModelled{"a template with views"};
  Model drawing(name);
  drawing.parameters = pattern.parameters;
  drawing.content = MadeOf(from, {model.id, &model});
  drawing.modified = true;
  return session.Add(std::move(drawing));
}

// With the errors that making a drawing of this template gives.
ProError CreationAnswer(const Call& call, const Model& pattern, ProDwgcreateErrs& place) {
  const int count = pattern.As<DrawingContent>()->template_errors;
  place = nullptr;
  if (count == 0) return PRO_TK_NO_ERROR;
  place = static_cast<ProDwgcreateErrs>(NewArray(call, count, kErrorRecordSize));
  return PRO_TK_DWGCREATE_ERRORS;
}

// A model that the drawing shows.
void CheckDrawn(const Call& call, const DrawingContent& drawing, const Model& model) {
  if (!IsDrawn(drawing, model)) {
    call.Fail("\"" + model.id.Text() + "\" is no model of the drawing");
  }
}

// One sheet, or all of them.
struct SheetsIn {
  ProDrawing drawing;
  int number;
  std::string Describe() const { return SheetIn{drawing, number}.Describe(); }
  std::vector<Sheet*> Look(const Call& call) const {
    DrawingContent& content = DrawingIn(drawing).Look(call);
    if (number != kAllSheets) return {&SheetAt(call, content, number)};
    std::vector<Sheet*> all;
    for (Sheet& sheet : content.sheets) all.push_back(&sheet);
    return all;
  }
};

ProError ShowFormats(const Call& call, ProDrawing drawing, const std::vector<Sheet*>& sheets,
                     bool shown) {
  bool changed = false;
  for (Sheet* const sheet : sheets) {
    changed = changed || sheet->format_shown != shown;
    sheet->format_shown = shown;
  }
  if (!changed) return PRO_TK_NO_CHANGE;
  call.ModelAt(drawing).modified = true;
  return PRO_TK_NO_ERROR;
}

// Null for a missing one: the host refuses it and changes nothing.
struct FormatIn : ModelIn {
  Model* Look(const Call& call) const {
    if (handle == nullptr) return nullptr;
    Model& model = ModelIn::Look(call);
    if (model.As<FormatContent>() == nullptr) call.Fail("not a drawing format");
    return &model;
  }
};

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProDrawingFromTmpltCreate(ProName name, wchar_t* template_name, ProMdldata* model,
                                   ProDwgcreateOptions options, ProDrawing* drawing,
                                   ProDwgcreateErrs* errors) {
  return Crossing(__func__, ModelNameIn{name}, PathIn{template_name, "template"},
                  RecordedModelIn(model), options, Out(drawing, "drawing place"),
                  Out(errors, "errors place"))
      .Run([](const Call& call, const std::string& wanted, const std::filesystem::path& file,
              Model& shown, int chosen, ProDrawing& place, ProDwgcreateErrs& problems) {
        if ((chosen & ~kKnownCreateOptions) != 0) throw NotModelled{"other options"};
        Session& session = call.host.session;
        const ModelName id = {wanted, ModelKind::kDrawing};
        if (IsTaken(session, id)) return PRO_TK_E_FOUND;
        const std::optional<Model> pattern = TemplateOf(call, file);
        if (!pattern) return PRO_TK_E_NOT_FOUND;
        if (session.IsReadOnly(session.working_directory())) return PRO_TK_NO_PERMISSION;
        Model& made = NewDrawing(session, id, *pattern, shown);
        if ((chosen & PRO_DWGCREATE_DISPLAY_DRAWING) != 0) session.ShowInWindow(made);
        place = made.handle;
        return CreationAnswer(call, *pattern, problems);
      });
}

ProError ProDwgcreateErrsFree(ProDwgcreateErrs* errors) {
  return Crossing(__func__, PlaceGivenBack(errors, "errors place"))
      .Run([](const Call& call, ProDwgcreateErrs& place) {
        FreeArray(call, place);
        place = nullptr;
      });
}

ProError ProDrawingSheetTrfGet(ProDrawing drawing, int sheet, ProName size_name,
                               ProMatrix transform) {
  return Crossing(__func__, SheetIn{drawing, sheet}, OutText{size_name, PRO_NAME_SIZE},
                  OutMatrix{transform})
      .Run([](const SheetPlace& at, TextPlace size, MatrixPlace place) {
        size = at.sheet.size;
        place = at.sheet.transform;
      });
}

ProError ProDrawingSheetsCount(ProDrawing drawing, int* count) {
  return Crossing(__func__, DrawingIn(drawing), Out(count, "count place"))
      .Run([](const DrawingContent& from, int& place) {
        place = static_cast<int>(from.sheets.size());
      });
}

ProError ProDrawingCurrentSheetGet(ProDrawing drawing, int* sheet) {
  return Crossing(__func__, DrawingIn(drawing), Out(sheet, "sheet place"))
      .Run([](const DrawingContent& from, int& place) { place = from.current_sheet; });
}

ProError ProDrawingCurrentSheetSet(ProDrawing drawing, int sheet) {
  return Crossing(__func__, SheetIn{drawing, sheet}).Run([](const SheetPlace& at) {
    at.content.current_sheet = at.number;
  });
}

ProError ProDwgSheetRegenerate(ProDrawing drawing, int sheet) {
  return Crossing(__func__, SheetIn{drawing, sheet}).Run([](const SheetPlace& at) {
    RegenerateSheet(at.content, at.number);
  });
}

ProError ProDrawingSolidsCollect(ProDrawing drawing, ProSolid** solids) {
  return Crossing(__func__, DrawingIn(drawing), Out(solids, "solids place"))
      .Run([](const Call& call, const DrawingContent& from, ProSolid*& place) {
        std::vector<ProSolid> handles;
        for (const Model* const model : DrawnModels(from)) handles.push_back(model->handle);
        return GiveItems(call, handles, place);
      });
}

ProError ProDrawingCurrentsolidGet(ProDrawing drawing, ProSolid* solid) {
  return Crossing(__func__, DrawingIn(drawing), Out(solid, "solid place"))
      .Run([](const DrawingContent& from, ProSolid& place) {
        if (!from.shows || from.shows->model == nullptr) return PRO_TK_E_NOT_FOUND;
        place = from.shows->model->handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingCurrentsolidSet(ProDrawing drawing, ProSolid solid) {
  return Crossing(__func__, WholeDrawingIn{{drawing}}, SolidIn{{solid}})
      .Run([](const Call& call, const DrawingPlace& at, Model& shown) {
        CheckDrawn(call, at.content, shown);
        ShowModel(at.content, {shown.id, &shown});
        at.model.modified = true;
      });
}

ProError ProDrawingScaleGet(ProDrawing drawing, ProSolid solid, int sheet, double* scale) {
  return Crossing(__func__, DrawingIn(drawing), SolidIn{{solid}}, sheet, Out(scale, "scale place"))
      .Run([](const Call& call, DrawingContent& from, const Model& shown, int number,
              double& place) {
        CheckDrawn(call, from, shown);
        place = SheetScale(SheetAt(call, from, number), shown.id);
      });
}

ProError ProDrawingScaleSet(ProDrawing drawing, ProSolid solid, int sheet, double scale) {
  return Crossing(__func__, WholeDrawingIn{{drawing}}, SolidIn{{solid}}, sheet, scale)
      .Run([](const Call& call, const DrawingPlace& at, const Model& shown, int number,
              double wanted) {
        CheckDrawn(call, at.content, shown);
        if (!(wanted > 0)) return PRO_TK_BAD_INPUTS;
        SetSheetScale(SheetAt(call, at.content, number), shown.id, wanted);
        at.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingFormatAdd(ProDrawing drawing, int sheet, ProSolid solid, ProMdl format,
                             int format_sheet) {
  return Crossing(__func__, SheetIn{drawing, sheet}, SolidIn{{solid}}, FormatIn{{format}},
                  format_sheet)
      .Run([](const Call& call, const SheetPlace& at, const Model& shown, const Model* given,
              int number) {
        CheckDrawn(call, at.content, shown);
        if (given == nullptr) return PRO_TK_BAD_INPUTS;
        const auto& content = *given->As<FormatContent>();
        if (!PlaceFormat(at.content, at.number, given->id, content, number)) {
          return PRO_TK_E_NOT_FOUND;
        }
        at.model.modified = true;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProDrawingSheetFormatHide(ProDrawing drawing, int sheet) {
  return Crossing(__func__, SheetsIn{drawing, sheet})
      .Run([&](const Call& call, const std::vector<Sheet*>& sheets) {
        return ShowFormats(call, drawing, sheets, false);
      });
}

ProError ProDrawingSheetFormatShow(ProDrawing drawing, int sheet) {
  return Crossing(__func__, SheetsIn{drawing, sheet})
      .Run([&](const Call& call, const std::vector<Sheet*>& sheets) {
        return ShowFormats(call, drawing, sheets, true);
      });
}

ProError ProDrawingSheetFormatIsShown(ProDrawing drawing, int sheet, ProBoolean* is_shown) {
  return Crossing(__func__, SheetIn{drawing, sheet}, Out(is_shown, "answer place"))
      .Run([](const SheetPlace& at, ProBoolean& place) {
        place = AsBoolean(at.sheet.format_shown);
      });
}
