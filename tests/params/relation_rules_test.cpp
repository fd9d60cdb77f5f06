// Relation lines: how a text is parted. What becomes of the lines that are there: relations.qms.
#include "params/relation_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

using Lines = RelationLines;

TEST(SplitRelations, APieceALineWithoutReturnsAndEmptyOnes) {
  EXPECT_EQ(SplitRelations(L""), Lines());
  EXPECT_EQ(SplitRelations(L"a=1\nb=2\n"), (Lines{L"a=1", L"b=2"}));
  EXPECT_EQ(SplitRelations(L"a=1\r\n\r\n\n b = 2 \r\n"), (Lines{L"a=1", L" b = 2 "}));
  EXPECT_EQ(SplitRelations(L"\n\nlast"), Lines{L"last"});
  // A return inside a line, and a second one at its end, are part of it.
  EXPECT_EQ(SplitRelations(L"a\rb\r\r\n"), Lines{L"a\rb\r"});
  EXPECT_EQ(SplitRelations(L"\r\n  \n"), Lines{L"  "});
}

}  // namespace
}  // namespace qm
