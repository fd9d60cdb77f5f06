// Dimensions: their texts and tolerances.
#include "tests/workbench/api/drawing_contract.h"

namespace wb {
namespace {

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
  ProError SetText(std::vector<std::wstring> lines) {
    ProArray array = nullptr;
    ProArrayAlloc(0, sizeof(ProLine), 1, &array);
    for (std::wstring& line : lines) {
      line.resize(PRO_LINE_SIZE);
      ProArrayObjectAdd(&array, PRO_VALUE_UNUSED, 1, line.data());
    }
    const ProError status = ProDimensionTextSet(&item_, static_cast<ProLine*>(array));
    ProArrayFree(&array);
    return status;
  }

  ProDimension item_ = {PRO_DIMENSION, 5, drw_->handle};
};

TEST_F(Dimensions, HaveLinesThatAreReplacedWhole) {
  EXPECT_EQ(TextNow(), "1|@D");
  host_.habits.untouched_dimension_has_no_lines = true;
  EXPECT_EQ(TextNow(), "0");
  host_.habits.untouched_dimension_text_fails = true;
  EXPECT_EQ(TextNow(), "refused");
  EXPECT_EQ(SetText({L"\x01n\x02@D", L"深"}), PRO_TK_NO_ERROR);
  EXPECT_EQ(TextNow(), "2|\x01n\x02@D|深");
  EXPECT_EQ(SetText({}), PRO_TK_BAD_INPUTS);
  EXPECT_TRUE(drw_->modified);
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
  EXPECT_EQ(SetText({L"R@D"}), PRO_TK_CANT_MODIFY);
}

}  // namespace
}  // namespace wb
