// Drawings made of templates, their scales, formats and tables; dimensions, their texts and
// tolerances.
#include "tests/workbench/api/drawing_contract.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

class DrawingsMade : public DrawingContract {
 protected:
  DrawingsMade() {
    Model pattern({"qm", ModelKind::kDrawing});
    auto& content = *pattern.As<DrawingContent>();
    content.sheets.push_back({"A0"});
    std::filesystem::create_directories(folder_ / "tp");
    WriteModelFile(pattern, folder_ / "tp" / "qm.drw.1");
    content.template_errors = 2;
    pattern.id.name = "bad";
    WriteModelFile(pattern, folder_ / "bad.drw.1");
    EXPECT_EQ(ProMdlDataGet(plate_->handle, &record_), PRO_TK_NO_ERROR);
  }
  ProError Make(const std::wstring& name, const std::wstring& pattern, int options = 1) {
    std::wstring wanted = name, file = pattern;
    drawing_made_ = nullptr;
    errors_ = nullptr;
    return ProDrawingFromTmpltCreate(wanted.data(), file.data(), &record_, options, &drawing_made_,
                                     &errors_);
  }

  ProMdldata record_{};
  ProDrawing drawing_made_ = nullptr;
  ProDwgcreateErrs errors_ = nullptr;
};

TEST_F(DrawingsMade, OfATemplateByNameOrByPath) {
  const std::wstring path = (folder_ / "tp" / "qm.drw").wstring();
  WriteFile("taken.drw.1", R"({"format": 2, "model": "taken.drw"})");
  ProMdldata nothing{};
  Check({
      {"in another folder", [&] { return Make(L"plate-12", L"qm.drw"); }, PRO_TK_E_NOT_FOUND},
      {"by path", [&] { return Make(L"plate-12", path); }, PRO_TK_NO_ERROR},
      {"a version that is not there", [&] { return Make(L"p", path + L".2"); }, PRO_TK_E_NOT_FOUND},
      {"in session already", [&] { return Make(L"PLATE-12", path); }, PRO_TK_E_FOUND},
      {"on disk already", [&] { return Make(L"taken", path); }, PRO_TK_E_FOUND},
      {"for no model",
       [&] {
         wchar_t name[] = L"other", file[] = L"qm.drw";
         return ProDrawingFromTmpltCreate(name, file, &nothing, 1, &drawing_made_, &errors_);
       },
       PRO_TK_BAD_INPUTS, "ProDrawingFromTmpltCreate: a record that names no model in session"},
  });
  EXPECT_EQ(host_.session.Find({"qm", ModelKind::kDrawing}), nullptr);
}

TEST_F(DrawingsMade, InTheWorkingDirectoryAloneAndOnlyWhereOneMayWrite) {
  host_.habits.model_data_has_name_first = true;
  EXPECT_EQ(ProMdlDataGet(plate_->handle, &record_), PRO_TK_NO_ERROR);
  host_.session.ChangeDirectory(folder_ / "tp");
  EXPECT_EQ(Make(L"a", L"qm.drw", 0), PRO_TK_NO_ERROR);
  EXPECT_EQ(host_.session.FindWindowOf(*host_.session.Find({"a", ModelKind::kDrawing})), nullptr);
  host_.session.MakeReadOnly(folder_ / "tp");
  EXPECT_EQ(Make(L"b", L"qm.drw"), PRO_TK_NO_PERMISSION);
  EXPECT_EQ(host_.session.Find({"b", ModelKind::kDrawing}), nullptr);
}

TEST_F(DrawingsMade, WithErrorsThatAreTheCallers) {
  EXPECT_EQ(Make(L"a", L"bad.drw"), PRO_TK_DWGCREATE_ERRORS);
  EXPECT_NE(drawing_made_, nullptr) << "the drawing is there all the same";
  ASSERT_NE(errors_, nullptr);
  EXPECT_EQ(host_.accounts.open().size(), 1u);
  EXPECT_EQ(ProDwgcreateErrsFree(&errors_), PRO_TK_NO_ERROR);
  EXPECT_EQ(host_.accounts.open().size(), 0u);
}

TEST_F(DrawingContract, ScalesAndModelsAreThoseOfTheDrawing) {
  double scale = 0;
  Check({
      {"none of these", [&] { return ProDrawingCurrentSheetSet(drw_->handle, 3); },
       PRO_TK_BAD_INPUTS, "ProDrawingCurrentSheetSet: the drawing has no sheet 3"},
      {"of a foreign model",
       [&] { return ProDrawingScaleGet(drw_->handle, lid_->handle, 2, &scale); }, PRO_TK_BAD_INPUTS,
       "ProDrawingScaleGet: \"lid.prt\" is no model of the drawing"},
      {"zero", [&] { return ProDrawingScaleSet(drw_->handle, plate_->handle, 2, 0); },
       PRO_TK_BAD_INPUTS},
      {"foreign current model",
       [&] { return ProDrawingCurrentsolidSet(drw_->handle, lid_->handle); }, PRO_TK_BAD_INPUTS,
       "ProDrawingCurrentsolidSet: \"lid.prt\" is no model of the drawing"},
  });
}

TEST_F(DrawingContract, FormatsArePlacedOnSheetsAndHiddenOnce) {
  Model frame({"frame", ModelKind::kFormat});
  frame.As<FormatContent>()->sheets.push_back({"A2"});
  Model& format = host_.session.Add(std::move(frame));
  const ProMdl drawing = drw_->handle, solid = plate_->handle;
  Check({
      {"a part", [&] { return ProDrawingFormatAdd(drawing, 1, solid, solid, 1); },
       PRO_TK_BAD_INPUTS, "ProDrawingFormatAdd: not a drawing format"},
      {"its second sheet", [&] { return ProDrawingFormatAdd(drawing, 1, solid, format.handle, 2); },
       PRO_TK_E_NOT_FOUND},
      {"on a sheet that is not there",
       [&] { return ProDrawingFormatAdd(drawing, 5, solid, format.handle, 1); }, PRO_TK_BAD_INPUTS,
       "ProDrawingFormatAdd: the drawing has no sheet 5"},
      {"hidden", [&] { return ProDrawingSheetFormatHide(drawing, kAllSheets); }, PRO_TK_NO_ERROR},
      {"hidden again", [&] { return ProDrawingSheetFormatHide(drawing, 1); }, PRO_TK_NO_CHANGE},
  });
}

TEST_F(DrawingContract, TablesAreDeletedOnceAndTheirSegmentsCounted) {
  Drawing().tables.Add({.id = 1, .segments = {1, 2}});
  Drawing().tables.Add({.id = 2, .format = "frame.frm", .segments = {2}});
  ProDwgtable* tables = nullptr;
  ASSERT_EQ(ProDrawingTablesCollect(drw_->handle, &tables), PRO_TK_NO_ERROR);
  int sheet = 0;
  Check({
      {"no such segment", [&] { return ProDwgtableSegSheetGet(&tables[1], 1, &sheet); },
       PRO_TK_E_NOT_FOUND},
      {"deleted", [&] { return ProDwgtableDelete(&tables[0], 1); }, PRO_TK_NO_ERROR},
      {"deleted twice", [&] { return ProDwgtableDelete(&tables[0], 1); }, PRO_TK_BAD_INPUTS,
       "ProDwgtableDelete: \"plate.drw\" has no table 1"},
  });
  host_.habits.table_segments_count_from_minus_one = true;
  EXPECT_EQ(ProDwgtableSegSheetGet(&tables[1], 0, &sheet), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(ProDwgtableSegSheetGet(&tables[1], -1, &sheet), PRO_TK_NO_ERROR);
  EXPECT_EQ(sheet, 2);
  ProArrayFree(reinterpret_cast<ProArray*>(&tables));
}

class Dimensions : public DrawingContract {
 protected:
  Dimensions() { Drawing().dimensions.Add({.id = 5, .value = 12.5}); }

  std::string TextNow() {
    ProLine* lines = nullptr;
    if (ProDimensionTextGet(&item_, &lines) != PRO_TK_NO_ERROR) return "refused";
    int count = 0;
    ProArraySizeGet(lines, &count);
    std::string text = std::to_string(count);
    for (int i = 0; i < count; ++i) text += "|" + FromWide(lines[i]);
    ProArrayFree(reinterpret_cast<ProArray*>(&lines));
    return text;
  }

  ProDimension item_ = {PRO_DIMENSION, 5, drw_->handle};
};

TEST_F(Dimensions, HaveALineOfTheirOwnOrNoneAsTheHostsHabitIs) {
  EXPECT_EQ(TextNow(), "1|@D");
  host_.habits.untouched_dimension_has_no_lines = true;
  EXPECT_EQ(TextNow(), "0");
  host_.habits.untouched_dimension_text_fails = true;
  EXPECT_EQ(TextNow(), "refused");
  ProArray none = nullptr;
  ProArrayAlloc(0, sizeof(ProLine), 1, &none);
  EXPECT_EQ(ProDimensionTextSet(&item_, static_cast<ProLine*>(none)), PRO_TK_BAD_INPUTS);
  ProArrayFree(&none);
}

TEST_F(Dimensions, HaveTolerancesOfATypeThatIsSetFirst) {
  double upper = 0.1, lower = 0.2, above = 0, below = 0;
  const auto set = [&] { return ProDimensionToleranceSet(&item_, &upper, &lower); };
  ProDimension note = {PRO_NOTE, 5, drw_->handle};
  Check({
      {"without a type", set, PRO_TK_BAD_CONTEXT},
      {"an unknown type",
       [&] { return ProDimensionToltypeSet(&item_, static_cast<ProDimToleranceType>(9)); },
       PRO_TK_INVALID_TYPE},
      {"typed", [&] { return ProDimensionToltypeSet(&item_, PRO_TOL_PLUS_MINUS); },
       PRO_TK_NO_ERROR},
      {"set", set, PRO_TK_NO_ERROR},
      {"read", [&] { return ProDimensionToleranceGet(&item_, &above, &below); }, PRO_TK_NO_ERROR},
      {"a note", [&] { return ProDimensionToltypeSet(&note, PRO_TOL_LIMITS); }, PRO_TK_BAD_INPUTS,
       "ProDimensionToltypeSet: item of type 68 given as a dimension"},
  });
  EXPECT_EQ(above, 0.1);
  EXPECT_EQ(below, 0.2);
  host_.habits.tolerances_are_taken_for_numbers = true;
  EXPECT_EQ(set(), PRO_TK_NO_ERROR);
  ProDimensionToleranceGet(&item_, &above, &below);
  EXPECT_NE(above, upper);
  Drawing().dimensions.Find(5)->locked = true;
  EXPECT_EQ(set(), PRO_TK_CANT_MODIFY);
}

}  // namespace
}  // namespace wb
