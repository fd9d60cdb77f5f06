// Relation lines: how a text is parted, and what becomes of the lines that are there.
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

TEST(RelationsAfter, MissingLinesAreThoseThatWereNotThereBefore) {
  const Lines present = {L"a=1", L"d1=10"};
  EXPECT_EQ(RelationsAfter(RelationAction::kAppendMissing, present,
                           {L"A=1", L"a=1", L"d1 = 10", L"n=1", L"n=1"}),
            (Lines{L"a=1", L"d1=10", L"A=1", L"d1 = 10", L"n=1", L"n=1"}));
  EXPECT_EQ(RelationsAfter(RelationAction::kAppendMissing, present, present), present);
  EXPECT_EQ(RelationsAfter(RelationAction::kAppend, present, {L"a=1", L"n=1"}),
            (Lines{L"a=1", L"d1=10", L"a=1", L"n=1"}));
  EXPECT_EQ(RelationsAfter(RelationAction::kCover, present, {L"n=1"}), Lines{L"n=1"});
  EXPECT_EQ(RelationsAfter(RelationAction::kCover, present, {}), Lines());
}

}  // namespace
}  // namespace qm
