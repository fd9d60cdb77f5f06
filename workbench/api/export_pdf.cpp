// Host functions that write PDF files: their options, and pages that the companion makes of sheets.
#include <nlohmann/json.hpp>

#include "workbench/api/export_file.h"
#include "workbench/base/text.h"
#include "workbench/host/arguments.h"
#include "workbench/sheet/sheet_svg.h"

namespace wb {
namespace {

using PdfJson = nlohmann::json;

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

using PdfOptionsIn = LentIn<PdfChoices, HandleKind::kPdfOptions, ProPDFOptions>;

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

PdfJson PdfPage(const SheetPicture& sheet, int number, const PdfWish& wish) {
  const Page page = DrawPage(sheet, wish.ink, wish.stroked);
  PdfJson views = PdfJson::array();
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
  PdfJson pages = PdfJson::array();
  for (const int sheet : wish.sheets) {
    pages.push_back(PdfPage(sheets[static_cast<size_t>(sheet - 1)], sheet, wish));
  }
  const PdfJson question = {{"want", "pdf"},
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
