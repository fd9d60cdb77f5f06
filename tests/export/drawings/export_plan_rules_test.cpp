// The files that a drawing gives where something about it is not known. What is known gives those
// of export_world_test.
#include "export/drawings/export_plan_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

// "folder, name, sheet" of what is written, with a mark of the sheet's own; "-" and the reason of
// what is not.
std::string LineOf(const PlannedFile& file) {
  const std::wstring folder = RowOf(file.format).folder;
  std::string line(folder.begin(), folder.end());
  line += std::string(file.name.begin(), file.name.end()) + " " + std::to_string(file.sheet);
  if (file.per_sheet) line += " own";
  if (file.plan == FilePlan::kCannot) line += " cannot";
  if (file.plan == FilePlan::kNotMeant) line += " not meant";
  return line;
}

using Lines = std::vector<std::string>;

Lines LinesOf(const std::vector<PlannedFile>& files) {
  Lines lines;
  for (const PlannedFile& file : files) lines.push_back(LineOf(file));
  return lines;
}

ExportOptions Options(unsigned formats, bool per_sheet) {
  ExportOptions options;
  for (unsigned i = 0; i < kExportFormats.size(); ++i) options.formats[i] = (formats >> i & 1) != 0;
  options.per_sheet = per_sheet;
  return options;
}

// Base name "d"; sheet s is named "s<s>" after the model "m<s>".
DrawingFacts Drawing(int sheets) {
  DrawingFacts facts{L"d", sheets, std::vector<SheetFacts>()};
  for (int sheet = 1; sheet <= sheets; ++sheet) {
    facts.sheets->push_back({true, L"s" + std::to_wstring(sheet), L"m" + std::to_wstring(sheet)});
  }
  return facts;
}

TEST(ExportPlan, ASheetOfWhichTheModelIsNotToldIsNoneWithoutViews) {
  DrawingFacts drawing = Drawing(2);
  (*drawing.sheets)[1] = {};
  EXPECT_EQ(LinesOf(PlanFiles(drawing, Options(9, true))),
            (Lines{"DWG\\s1.dwg 1 own", "DWG\\d-2.dwg 2 own", "STP\\m1.stp 1 own",
                   "STP\\ 2 own not meant"}));
  (*drawing.sheets)[1] = {true, std::nullopt, std::nullopt};
  EXPECT_EQ(LinesOf(PlanFiles(drawing, Options(9, true))),
            (Lines{"DWG\\s1.dwg 1 own", "DWG\\d-2.dwg 2 own", "STP\\m1.stp 1 own",
                   "STP\\ 2 own cannot"}));
}

TEST(ExportPlan, WithoutViewsTheFormatThatNeedsThemAndAllLaterOnesAreLost) {
  DrawingFacts drawing{L"d", 2, std::nullopt};
  EXPECT_EQ(LinesOf(PlanFiles(drawing, Options(31, false))).size(), 2u + 2 + 1 + 1 + 1);
  EXPECT_EQ(LinesOf(PlanFiles(drawing, Options(9, true))),
            (Lines{"DWG\\ 1 cannot", "DWG\\ 2 cannot", "STP\\ 1 cannot", "STP\\ 2 cannot"}));
  drawing.sheet_count = 1;
  EXPECT_EQ(
      LinesOf(PlanFiles(drawing, Options(31, true))),
      (Lines{"DWG\\d.dwg 1", "DXF\\d.dxf 1", "PDF\\d.pdf 0", "STP\\ 1 cannot", "IGS\\ 1 cannot"}));
}

TEST(ExportPlan, WithoutACountOnlyWhatNeedsNoneIsWritten) {
  const DrawingFacts drawing{L"d", std::nullopt, std::nullopt};
  EXPECT_EQ(
      LinesOf(PlanFiles(drawing, Options(31, false))),
      (Lines{"DWG\\ 0 cannot", "DXF\\ 0 cannot", "PDF\\d.pdf 0", "STP\\d.stp 0", "IGS\\d.igs 0"}));
  EXPECT_EQ(LinesOf(PlanFiles(drawing, Options(31, true))),
            (Lines{"DWG\\ 0 cannot", "DXF\\ 0 cannot", "PDF\\ 0 cannot", "STP\\ 0 cannot",
                   "IGS\\ 0 cannot"}));
  EXPECT_EQ(LinesOf(PlanNothing(Options(6, true), "gone")),
            (Lines{"DXF\\ 0 cannot", "PDF\\ 0 cannot"}));
}

}  // namespace
}  // namespace qm
