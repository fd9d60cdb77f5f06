// Texts of dimensions as a reader of the sheet sees them.
#include "workbench/sheet/sheet_text.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

TEST(SheetTextTest, TolerancesStandWithTheValue) {
  const struct {
    ToleranceType type;
    const char* text;
    double upper;
    double lower;
    TextLine wanted;
  } cases[] = {
      {ToleranceType::kNominal, "", 0.1, 0.1, {"12.5"}},
      {ToleranceType::kNominal, "R@D", 0, 0, {"R12.5"}},
      {ToleranceType::kPlusMinus, "4×@DEQS", 0.1, 0.05, {"4×12.5", "+0.1", "-0.05", "EQS"}},
      {ToleranceType::kPlusMinus, "", 0.3, -0.1, {"12.5", "+0.3", "+0.1"}},
      {ToleranceType::kSymmetric, "(@D)", 0.2, 0.2, {"(12.5±0.2)"}},
      {ToleranceType::kSymmetricSuperscript, "@DH7", 0.2, 0.2, {"12.5", "±0.2", "", "H7"}},
      {ToleranceType::kLimits, "t@D", 0.1, 0.05, {"t", "12.6", "12.45"}},
  };
  for (const auto& item : cases) {
    const Dimension dimension{.value = 12.5,
                              .text = item.text,
                              .tolerance = item.type,
                              .upper = item.upper,
                              .lower = item.lower};
    EXPECT_EQ(LinesOf(dimension), std::vector{item.wanted}) << item.text;
  }
}

TEST(SheetTextTest, LettersOfTheSymbolFontAreSigns) {
  EXPECT_EQ(WithSymbols("\x01n\x02@D"), "Ø@D");
  EXPECT_EQ(WithSymbols("S\x01no\x02 no"), "SØ□ no");
  EXPECT_EQ(WithSymbols("\x01v\x02"
                        "9 \x01w\x02"
                        "9\x01x\x02"
                        "5"),
            "└┘9 ∨9↧5");
  EXPECT_EQ(WithSymbols("\x01q\x02\x02"), "q");
  EXPECT_EQ(LinesOf(Dimension{.value = 8, .text = "\x01n\x02@D\n通孔"}),
            (std::vector<TextLine>{{"Ø8"}, {"通孔"}}));
}

}  // namespace
}  // namespace wb
