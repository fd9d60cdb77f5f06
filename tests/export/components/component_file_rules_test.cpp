// Names of the files of components, and which of them a class takes in.
#include "export/components/component_file_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

using Names = std::vector<std::wstring>;

TEST(ComponentFiles, AnAssemblyWithTheNameOfAPartGivesWay) {
  EXPECT_EQ(ComponentFileNames({{L"bolt", true}, {L"nut", false}, {L"BOLT", false}}, L".stp"),
            (Names{L"bolt_asm.stp", L"nut.stp", L"BOLT.stp"}));
  EXPECT_EQ(ComponentFileNames({{L"螺栓", false}, {L"螺栓", true}, {L"螺母", true}}, L".igs"),
            (Names{L"螺栓.igs", L"螺栓_asm.igs", L"螺母.igs"}));
}

TEST(ComponentFiles, ATypeIsDigitsAlone) {
  EXPECT_EQ(FormatNumber(L"40"), 40);
  EXPECT_EQ(FormatNumber(L"007"), 7);
  for (const wchar_t* text : {L"", L"-1", L"4.0", L"SAT", L"４０", L"9999999999"}) {
    EXPECT_EQ(FormatNumber(text), std::nullopt);
  }
}

}  // namespace
}  // namespace qm
