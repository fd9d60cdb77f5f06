// Host functions that write files of other programs: DXF and PDF of drawings, which the companion
// makes of their sheets, and texts that stand for the files of other formats.
#include <nlohmann/json.hpp>

#include "workbench/api/export_file.h"
#include "workbench/base/text.h"
#include "workbench/host/arguments.h"
#include "workbench/sheet/sheet_svg.h"

namespace wb {
namespace {

using Json = nlohmann::json;

constexpr const char* kDwgOption = "dwg_export_format";

struct Data2d {
  std::optional<Pro2dSheetoption> sheets{};
  int model_space_sheet = 0;  // 0: nobody said
};

// Options that the plug-in has set, by number.
using PdfChoices = std::map<int, int>;

struct PdfOptionRow {
  int number;
  bool is_flag;
  int highest;
  int unset;  // what the host does where nobody says
};
constexpr PdfOptionRow kPdfOptions[] = {
    {PRO_PDFOPT_FONT_STROKE, false, PRO_PDF_STROKE_ALL_FONTS, PRO_PDF_USE_TRUE_TYPE_FONTS},
    {PRO_PDFOPT_COLOR_DEPTH, false, PRO_PDF_CD_MONO, PRO_PDF_CD_COLOR},
    {PRO_PDFOPT_LAUNCH_VIEWER, true, PRO_B_TRUE, PRO_B_TRUE},
    {PRO_PDFOPT_PENTABLE, true, PRO_B_TRUE, PRO_B_FALSE},
    {PRO_PDFOPT_SHEETS, false, PRO_PRINT_SELECTED_SHEETS, PRO_PRINT_ALL_SHEETS},
};

const PdfOptionRow& PdfOptionOf(int number) {
  for (const PdfOptionRow& row : kPdfOptions) {
    if (row.number == number) return row;
  }
  throw NotModelled{"option " + std::to_string(number) + " of PDF files"};
}

int ChoiceOf(const PdfChoices& choices, ProPDFOptiontype option) {
  const auto found = choices.find(option);
  return found == choices.end() ? PdfOptionOf(option).unset : found->second;
}

// "0=1 1=2 5=0": what was set, by number.
std::string TextOf(const PdfChoices& choices) {
  std::string text;
  for (const auto& [number, value] : choices) {
    text += (text.empty() ? "" : " ") + std::to_string(number) + "=" + std::to_string(value);
  }
  return text;
}

// An opaque thing of the plug-in's that stands for a record of the host's own.
template <typename Record, HandleKind kKind, typename Handle>
struct LentIn {
  Handle handle;
  std::string Describe() const { return DescribeArgument(static_cast<const void*>(handle)); }
  Record& Look(const Call& call) const {
    return *static_cast<Record*>(call.Look(handle, kKind).object);
  }
};
using Data2dIn = LentIn<Data2d, HandleKind::kExportData, Pro2dExportdata>;
using PdfOptionsIn = LentIn<PdfChoices, HandleKind::kPdfOptions, ProPDFOptions>;

// Null: nothing was said.
struct OptionalData2dIn : Data2dIn {
  const Data2d* Look(const Call& call) const {
    return handle == nullptr ? nullptr : &Data2dIn::Look(call);
  }
};

template <typename Record, typename Handle>
void Lend(const Call& call, Handle& place, HandleKind kind, Resource resource) {
  place = static_cast<Handle>(call.host.handles.Give(kind, new Record));
  call.Give(place, resource);
}

template <typename Record, typename Handle>
void TakeBack(const Call& call, Handle lent, HandleKind kind, Resource resource) {
  call.TakeBack(lent, resource);
  delete static_cast<Record*>(call.Look(lent, kind).object);
  call.host.handles.End(lent);
}

// The sheet that a 2D file shows; 0: there is no such sheet.
int SheetOf(const DrawingContent& drawing, const Data2d* data) {
  if (data == nullptr) return drawing.current_sheet;
  if (data->sheets == PRO2DEXPORT_CURRENT_TO_MODEL_SPACE) return drawing.current_sheet;
  if (data->sheets != PRO2DEXPORT_SELECTED) throw NotModelled{"other sheets than a chosen one"};
  return FindSheet(drawing, data->model_space_sheet) == nullptr ? 0 : data->model_space_sheet;
}

std::string SheetText(int sheet, const Model& drawing) {
  return "sheet " + std::to_string(sheet) + " of " + drawing.id.Text();
}

std::string Asked2d(const Call& call, int type, const Data2d* data) {
  std::string text = std::string(call.function) + ", type " + std::to_string(type);
  if (data == nullptr) {
    text += ", no export data";
  } else {
    text += ", sheet option " + std::to_string(*data->sheets) + ", model-space sheet " +
            std::to_string(data->model_space_sheet);
  }
  const auto version = call.host.options.find(kDwgOption);
  const bool has_version = version != call.host.options.end() && !version->second.empty();
  return text + ", " + kDwgOption + " " + (has_version ? version->second.front() : "not set") + ".";
}

Companion::Answer MakeDxf(const Model& model, const DrawingContent& drawing, int sheet) {
  const std::vector<SheetPicture> sheets = PictureOf(drawing);
  const Page page = DrawPage(sheets[static_cast<size_t>(sheet - 1)]);
  const Json question = {
      {"want", "dxf"},
      {"svg", page.svg},
      {"width", page.width},
      {"height", page.height},
      {"properties", {{"Drawing", model.id.Text()}, {"Sheet", std::to_string(sheet)}}}};
  return TheCompanion().Ask(question.dump());
}

struct PdfWish {
  PageInk ink = PageInk::kColour;
  bool stroked = false;
  std::vector<int> sheets;
  std::string said;  // how it was asked for
};

std::vector<int> SheetsOf(const DrawingContent& drawing, int choice) {
  if (choice == PRO_PRINT_CURRENT_SHEET) return {drawing.current_sheet};
  if (choice != PRO_PRINT_ALL_SHEETS) throw NotModelled{"PDF files of selected sheets"};
  std::vector<int> sheets;
  for (int sheet = kFirstSheet; FindSheet(drawing, sheet) != nullptr; ++sheet) {
    sheets.push_back(sheet);
  }
  return sheets;
}

Json PdfPage(const SheetPicture& sheet, int number, const PdfWish& wish) {
  const Page page = DrawPage(sheet, wish.ink, wish.stroked);
  Json views = Json::array();
  for (const ViewPicture& view : sheet.views) {
    const double down = page.height - view.outline[3];
    views.push_back({{"name", "view " + std::to_string(view.id) + ", " + view.told},
                     {"place", {view.outline[0], down}}});
  }
  return {{"svg", page.svg},
          {"width", page.width},
          {"height", page.height},
          {"name", "sheet " + std::to_string(number) + ", " + sheet.size},
          {"views", views}};
}

Companion::Answer MakePdf(const Model& model, const DrawingContent& drawing, const PdfWish& wish) {
  const std::vector<SheetPicture> sheets = PictureOf(drawing);
  Json pages = Json::array();
  for (const int sheet : wish.sheets) {
    pages.push_back(PdfPage(sheets[static_cast<size_t>(sheet - 1)], sheet, wish));
  }
  const Json question = {{"want", "pdf"},
                         {"title", model.id.Text()},
                         {"subject", wish.said},
                         {"pages", std::move(pages)}};
  return TheCompanion().Ask(question.dump());
}

ProError WritePdf(const Call& call, const Model& model, const DrawingContent& drawing,
                  const std::filesystem::path& file, const PdfWish& wish) {
  if (call.host.session.FindWindowOf(model) == nullptr) return PRO_TK_NOT_DISPLAYED;
  std::vector<std::string> sheets;
  for (const int sheet : wish.sheets) sheets.push_back(std::to_string(sheet));
  return WriteExport(
      call, model, file,
      {FileFormat::kPdf, ".pdf", "PDF", "sheet " + Join(", ", sheets) + " of " + model.id.Text(),
       std::string(call.function) + ", " + wish.said + ".",
       [&] { return MakePdf(model, drawing, wish); }});
}

// A profile of the working directory, or of its full path.
bool IsProfileThere(const Call& call, std::filesystem::path profile) {
  if (!profile.has_extension()) profile += ".dop";
  return std::filesystem::is_regular_file(call.host.session.working_directory() / profile);
}

ProError SetPdfOption(const Call& call, PdfChoices& choices, int option, int value, bool as_flag) {
  const PdfOptionRow& row = PdfOptionOf(option);
  if (row.is_flag != as_flag) return PRO_TK_INVALID_TYPE;
  if (value < 0 || value > row.highest) {
    call.Fail("value " + std::to_string(value) + " of option " + std::to_string(option));
  }
  choices[option] = value;
  return PRO_TK_NO_ERROR;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError Pro2dExportdataAlloc(Pro2dExportdata* data) {
  return Crossing(__func__, Out(data, "data place"))
      .Run([](const Call& call, Pro2dExportdata& place) {
        Lend<Data2d>(call, place, HandleKind::kExportData, Resource::kExportData);
      });
}

ProError Pro2dExportdataFree(Pro2dExportdata data) {
  return Crossing(__func__, GivenBack(data)).Run([](const Call& call, Pro2dExportdata lent) {
    TakeBack<Data2d>(call, lent, HandleKind::kExportData, Resource::kExportData);
  });
}

ProError Pro2dExportdataSheetoptionSet(Pro2dExportdata data, Pro2dSheetoption option) {
  return Crossing(__func__, Data2dIn{data}, option)
      .Run([](const Call& call, Data2d& held, Pro2dSheetoption wanted) {
        const bool known =
            wanted >= PRO2DEXPORT_CURRENT_TO_MODEL_SPACE && wanted <= PRO2DEXPORT_SELECTED;
        if (!known) call.Fail("sheet option " + std::to_string(static_cast<int>(wanted)));
        held.sheets = wanted;
      });
}

ProError Pro2dExportdataModelspacesheetSet(Pro2dExportdata data, int sheet) {
  return Crossing(__func__, Data2dIn{data}, sheet)
      .Run([](const Call& call, Data2d& held, int wanted) {
        if (wanted < kFirstSheet) call.Fail("sheet " + std::to_string(wanted));
        held.model_space_sheet = wanted;
      });
}

ProError Pro2dExport(int type, ProPath file, ProMdl drawing, Pro2dExportdata data) {
  return Crossing(__func__, type, PathIn{file, "file"}, DrawingIn(drawing),
                  OptionalData2dIn{{data}})
      .Run([&](const Call& call, int kind, const std::filesystem::path& path,
               const DrawingContent& from, const Data2d* held) {
        const bool is_dxf = kind == PRO_DXF_FILE;
        if (!is_dxf && kind != PRO_DWG_FILE) {
          throw NotModelled{"files of type " + std::to_string(kind)};
        }
        if (held != nullptr && !held->sheets) call.Fail("export data without a sheet option");
        const Model& model = call.ModelAt(drawing);
        const bool is_shown = call.host.session.FindWindowOf(model) != nullptr;
        const bool must_be_shown = call.host.habits.undisplayed_drawing_is_not_exported;
        if (must_be_shown && !is_shown) return PRO_TK_NOT_DISPLAYED;
        const int sheet = SheetOf(from, held);
        if (sheet == 0) return PRO_TK_BAD_INPUTS;
        ExportJob job = {FileFormat::kDwg, ".dwg", "DWG", SheetText(sheet, model),
                         Asked2d(call, kind, held)};
        if (is_dxf) {
          job.format = FileFormat::kDxf;
          job.extension = ".dxf";
          job.word = "DXF";
          job.make = [&] { return MakeDxf(model, from, sheet); };
        }
        return WriteExport(call, model, path, job);
      });
}

ProError ProPDFoptionsAlloc(ProPDFOptions* options) {
  return Crossing(__func__, Out(options, "options place"))
      .Run([](const Call& call, ProPDFOptions& place) {
        Lend<PdfChoices>(call, place, HandleKind::kPdfOptions, Resource::kPdfOptions);
      });
}

ProError ProPDFoptionsFree(ProPDFOptions options) {
  return Crossing(__func__, GivenBack(options)).Run([](const Call& call, ProPDFOptions lent) {
    TakeBack<PdfChoices>(call, lent, HandleKind::kPdfOptions, Resource::kPdfOptions);
  });
}

ProError ProPDFoptionsIntpropertySet(ProPDFOptions options, int option, int value) {
  return Crossing(__func__, PdfOptionsIn{options}, option, value)
      .Run([](const Call& call, PdfChoices& choices, int number, int wanted) {
        return SetPdfOption(call, choices, number, wanted, false);
      });
}

ProError ProPDFoptionsBoolpropertySet(ProPDFOptions options, int option, ProBoolean value) {
  return Crossing(__func__, PdfOptionsIn{options}, option, value)
      .Run([](const Call& call, PdfChoices& choices, int number, ProBoolean wanted) {
        return SetPdfOption(call, choices, number, wanted, true);
      });
}

ProError ProPDFExport(ProMdl model, ProPath file, ProPDFOptions options) {
  return Crossing(__func__, DrawingIn(model), PathIn{file, "file"}, PdfOptionsIn{options})
      .Run([&](const Call& call, const DrawingContent& drawing, const std::filesystem::path& path,
               const PdfChoices& choices) {
        PdfWish wish;
        wish.ink = static_cast<PageInk>(ChoiceOf(choices, PRO_PDFOPT_COLOR_DEPTH));
        wish.stroked = ChoiceOf(choices, PRO_PDFOPT_FONT_STROKE) == PRO_PDF_STROKE_ALL_FONTS;
        wish.sheets = SheetsOf(drawing, ChoiceOf(choices, PRO_PDFOPT_SHEETS));
        wish.said = "options " + TextOf(choices);
        const ProError status = WritePdf(call, call.ModelAt(model), drawing, path, wish);
        const bool viewed = ChoiceOf(choices, PRO_PDFOPT_LAUNCH_VIEWER) == PRO_B_TRUE;
        if (viewed && status == PRO_TK_NO_ERROR) {
          call.host.events.Add(ShellCall{call.function, "open", PathToUtf8(path), "", 0});
        }
        return status;
      });
}

// What a profile says is the host's secret: it stands for the current sheet in black.
ProError ProPDFWithProfileExport(ProMdl model, ProPath file, ProPath profile) {
  return Crossing(__func__, DrawingIn(model), PathIn{file, "file"}, PathIn{profile, "profile"})
      .Run([&](const Call& call, const DrawingContent& drawing, const std::filesystem::path& path,
               const std::filesystem::path& named) {
        if (!IsProfileThere(call, named)) return PRO_TK_E_NOT_FOUND;
        const PdfWish wish = {
            PageInk::kMono, false, {drawing.current_sheet}, "profile " + PathToUtf8(named.stem())};
        return WritePdf(call, call.ModelAt(model), drawing, path, wish);
      });
}

ProError ProOutputFileWrite(ProMdl model, int type, ProPath file, ProAppData argument_1,
                            ProAppData argument_2, ProAppData argument_3, ProAppData argument_4) {
  return Crossing(__func__, ModelIn{model}, type, PathIn{file, "file"}, DataIn{argument_1},
                  DataIn{argument_2}, DataIn{argument_3}, DataIn{argument_4})
      .Run([](const Call& call, const Model& from, int kind, const std::filesystem::path& path,
              const void* a, const void* b, const void* c, const void* d) {
        const bool is_step = kind == PRO_STEP_FILE;
        if (!is_step && kind != PRO_IGES_3D_FILE) {
          throw NotModelled{"files of type " + std::to_string(kind)};
        }
        if (a != nullptr || b != nullptr || c != nullptr || d != nullptr) {
          throw NotModelled{std::string("further arguments of ") + call.function};
        }
        if (from.As<SolidContent>() == nullptr) return PRO_TK_INVALID_TYPE;
        const std::string asked = std::string(call.function) + ", type " + std::to_string(kind) +
                                  ", no further arguments.";
        const ExportJob step = {FileFormat::kStep, ".stp", "STEP", from.id.Text(), asked};
        const ExportJob iges = {FileFormat::kIges, ".igs", "IGES", from.id.Text(), asked};
        return WriteExport(call, from, path, is_step ? step : iges);
      });
}
