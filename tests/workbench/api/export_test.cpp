// Files of other programs: what the writers make, what they refuse, and what is in the real ones.
#include <nlohmann/json.hpp>

#include "tests/workbench/api/drawing_contract.h"
#include "workbench/base/utf8_text.h"
#include "workbench/companion/companion.h"
#include "workbench/sheet/dxf_reader.h"

namespace wb {
namespace {

class ExportContract : public DrawingContract {
 protected:
  ExportContract() {
    Drawing().sheets[1].size = "A2";
    GeneralView();
    Drawing().views.begin()->place = {100, 150};
    Drawing().dimensions.Add({.id = 4, .sheet = 1, .place = {100, 200}, .value = 300});
    Drawing().notes.Add({.id = 5, .sheet = 2, .place = {50, 60}, .text = "未注倒角 C1"});
  }
  ~ExportContract() override {
    EXPECT_EQ(host_.accounts.Describe(), Lines());
    EXPECT_EQ(Breaches(), Lines());
  }

  static std::wstring PathText(std::wstring text) {
    text.resize(PRO_PATH_SIZE);
    return text;
  }
  std::string Content(const char* name) const {
    return ReadFileBytes(folder_ / name).value_or("no file");
  }
  // Of a chosen sheet, as batches write it.
  ProError Export2d(int type, const wchar_t* file, int sheet) {
    Pro2dExportdata data = nullptr;
    EXPECT_EQ(Pro2dExportdataAlloc(&data), PRO_TK_NO_ERROR);
    EXPECT_EQ(Pro2dExportdataSheetoptionSet(data, PRO2DEXPORT_SELECTED), PRO_TK_NO_ERROR);
    EXPECT_EQ(Pro2dExportdataModelspacesheetSet(data, sheet), PRO_TK_NO_ERROR);
    const ProError status = Pro2dExport(type, PathText(file).data(), drw_->handle, data);
    EXPECT_EQ(Pro2dExportdataFree(data), PRO_TK_NO_ERROR);
    return status;
  }
  struct PdfChoice {
    int option;
    int value;
  };
  ProError ExportPdf(const wchar_t* file, const std::vector<PdfChoice>& choices) {
    ProPDFOptions options = nullptr;
    EXPECT_EQ(ProPDFoptionsAlloc(&options), PRO_TK_NO_ERROR);
    for (const PdfChoice& choice : choices) {
      EXPECT_EQ(ProPDFoptionsIntpropertySet(options, choice.option, choice.value), PRO_TK_NO_ERROR);
    }
    ProPDFoptionsBoolpropertySet(options, PRO_PDFOPT_LAUNCH_VIEWER, PRO_B_FALSE);
    const ProError status = ProPDFExport(drw_->handle, PathText(file).data(), options);
    EXPECT_EQ(ProPDFoptionsFree(options), PRO_TK_NO_ERROR);
    return status;
  }
  // What programs that did not write it read in it.
  nlohmann::json ReadPdf(const char* name) const {
    const auto& answer = TheCompanion().Ask(R"({"want":"read pdf"})", Content(name));
    EXPECT_EQ(answer.trouble, "");
    return answer.bytes.empty() ? nlohmann::json() : nlohmann::json::parse(answer.bytes);
  }
};

bool HasCompanion() {
  return TheCompanion().Ask(R"({"want":"nothing"})").trouble.starts_with("it knows nothing");
}

TEST_F(ExportContract, AFileOfAnotherFormatTellsWhatItStandsForAndHowItWasAskedFor) {
  host_.options["dwg_export_format"] = {"2000"};
  EXPECT_EQ(Export2d(PRO_DWG_FILE, L"A-2", 2), PRO_TK_NO_ERROR);
  EXPECT_EQ(Content("A-2.dwg"),
            "This file stands for the DWG file of sheet 2 of plate.drw.\n"
            "Pro2dExport, type 34, sheet option 3, model-space sheet 2, dwg_export_format 2000.\n");
  EXPECT_EQ(Export2d(PRO_DWG_FILE, L"A-3", 3), PRO_TK_BAD_INPUTS);
  std::wstring iges = PathText(L"plate.igs");
  EXPECT_EQ(ProOutputFileWrite(drw_->handle, PRO_IGES_3D_FILE, iges.data(), nullptr, nullptr,
                               nullptr, nullptr),
            PRO_TK_INVALID_TYPE);
}

TEST_F(ExportContract, DrawingsWithoutAWindowAreExportedAsTheHostsHabitIs) {
  host_.session.FindWindowOf(*drw_)->model = nullptr;
  EXPECT_EQ(Export2d(PRO_DWG_FILE, L"a", 1), PRO_TK_NO_ERROR);
  host_.habits.undisplayed_drawing_is_not_exported = true;
  EXPECT_EQ(Export2d(PRO_DWG_FILE, L"b", 1), PRO_TK_NOT_DISPLAYED);
  EXPECT_EQ(ExportPdf(L"a.pdf", {}), PRO_TK_NOT_DISPLAYED);
}

TEST_F(ExportContract, ChineseNotesAreReadInTheFilesOfTheirSheet) {
  if (!HasCompanion()) GTEST_SKIP();
  EXPECT_EQ(Export2d(PRO_DXF_FILE, L"b", 2), PRO_TK_NO_ERROR);
  const DxfFile drawn = ReadDxf(Content("b.dxf"));
  ASSERT_EQ(drawn.texts.size(), 1u);
  EXPECT_EQ(drawn.texts[0].layer + " " + drawn.texts[0].text, "NOTE 未注倒角 C1");
  EXPECT_TRUE(drawn.lines.empty());
  Drawing().current_sheet = 2;
  EXPECT_EQ(ExportPdf(L"b.pdf", {{PRO_PDFOPT_SHEETS, PRO_PRINT_CURRENT_SHEET}}), PRO_TK_NO_ERROR);
  const auto printed = ReadPdf("b.pdf");
  ASSERT_EQ(printed["pages"].size(), 1u);
  EXPECT_EQ(printed["pages"][0]["texts"], nlohmann::json({"未注倒角 C1"}));
}

TEST_F(ExportContract, WithoutACompanionAFileOnlyStandsForTheHostsAndItIsTold) {
  host_.companion_is_missing = true;
  EXPECT_EQ(ExportPdf(L"a.pdf", {{PRO_PDFOPT_COLOR_DEPTH, PRO_PDF_CD_MONO}}), PRO_TK_NO_ERROR);
  EXPECT_EQ(Content("a.pdf"),
            "This file stands for the PDF file of sheet 1, 2 of plate.drw.\n"
            "ProPDFExport, options 1=2 5=0.\n");
  const auto written = host_.events.All<ExportedFile>();
  ASSERT_EQ(written.size(), 1u);
  EXPECT_EQ(written[0].trouble, "the companion is missing");
}

}  // namespace
}  // namespace wb
