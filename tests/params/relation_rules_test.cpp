// Relation lines against a second, plain computation, and the cases that readers ask about.
#include "params/relation_rules.h"

#include <gtest/gtest.h>

#include <random>

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
  EXPECT_EQ(RelationsAfter(RelationAction::kCover, present, {}), Lines());
}

// The same as a user would do it with pencil and paper, line by line.
Lines ByHand(RelationAction action, const Lines& present, const Lines& added) {
  Lines lines;
  if (action != RelationAction::kCover) {
    for (const auto& line : present) lines.push_back(line);
  }
  for (const auto& line : added) {
    bool was_there = false;
    for (const auto& old : present) was_there = was_there || old == line;
    if (action == RelationAction::kAppendMissing && was_there) continue;
    lines.push_back(line);
  }
  return lines;
}

TEST(RelationsAfter, AgreesWithAPlainComputation) {
  std::mt19937 random(2031);
  const std::wstring words[] = {L"a=1", L"A=1", L"a =1", L"b=2", L"", L"c=3"};
  const auto some = [&] {
    Lines lines;
    for (size_t count = random() % 7; count > 0; --count) lines.push_back(words[random() % 6]);
    return lines;
  };
  for (int round = 0; round < 500; ++round) {
    const Lines present = some();
    const Lines added = some();
    for (const auto action :
         {RelationAction::kAppend, RelationAction::kAppendMissing, RelationAction::kCover}) {
      EXPECT_EQ(RelationsAfter(action, present, added), ByHand(action, present, added));
    }
  }
}

}  // namespace
}  // namespace qm
