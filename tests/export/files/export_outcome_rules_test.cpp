// What is believed of files that were to be written.
#include "export/files/export_outcome_rules.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

constexpr FileStamp kYesterday = {100, 1000};
constexpr FileStamp kToday = {100, 2000};
constexpr FileStamp kEmptyToday = {0, 2000};

TEST(ExportOutcome, YesterdaysFileIsNotTodays) {
  EXPECT_EQ(OutcomeOf({std::nullopt, kToday}), FileOutcome::kWritten);
  EXPECT_EQ(OutcomeOf({kYesterday, kToday}), FileOutcome::kWritten);
  EXPECT_EQ(OutcomeOf({kYesterday, kYesterday}), FileOutcome::kOld);
  EXPECT_EQ(OutcomeOf({std::nullopt, std::nullopt}), FileOutcome::kMissing);
  EXPECT_EQ(OutcomeOf({kYesterday, std::nullopt}), FileOutcome::kMissing);
  EXPECT_EQ(OutcomeOf({kYesterday, kEmptyToday}), FileOutcome::kEmpty);
}

TEST(ExportOutcome, AtTheEndOnlyWhatIsStillThereCounts) {
  using enum FileOutcome;
  EXPECT_EQ(OutcomeAtEnd(kWritten, kToday), kWritten);
  EXPECT_EQ(OutcomeAtEnd(kWrittenAgain, std::nullopt), kMissing);
  EXPECT_EQ(OutcomeAtEnd(kWritten, kEmptyToday), kEmpty);
  EXPECT_EQ(OutcomeAtEnd(kOld, std::nullopt), kOld);
  EXPECT_EQ(OutcomeAtEnd(kWrittenOver, kToday), kWrittenOver);
}

std::vector<FileOutcome> Marked(std::vector<ExpectedFile> files) {
  std::vector<ExpectedFile*> places;
  for (ExpectedFile& file : files) places.push_back(&file);
  MarkWrittenOver(places);
  std::vector<FileOutcome> outcomes;
  for (const ExpectedFile& file : files) outcomes.push_back(file.outcome);
  return outcomes;
}

TEST(ExportOutcome, ALaterFileOfTheSameNameIsTheOneThatIsThere) {
  using enum FileOutcome;
  EXPECT_EQ(Marked({{L"a", L"", kWritten}, {L"b", L"", kWritten}, {L"A", L"", kWritten}}),
            (std::vector{kWrittenOver, kWritten, kWritten}));
  EXPECT_EQ(Marked({{L"a", L"", kWritten}, {L"a", L"", kOld}}), (std::vector{kWritten, kOld}));
  EXPECT_EQ(Marked({{L"a", L"", kWritten}, {L"a", L"", kEmpty}}),
            (std::vector{kWrittenOver, kEmpty}));
  EXPECT_EQ(Marked({{L"a", L"", kEmpty}, {L"a", L"", kWritten}}), (std::vector{kEmpty, kWritten}));
}

TEST(ExportOutcome, OfTheSameModelNothingIsLost) {
  using enum FileOutcome;
  EXPECT_EQ(Marked({{L"a", L"2 a", kWritten}, {L"a", L"2 a", kWritten}}),
            (std::vector{kWrittenAgain, kWritten}));
  EXPECT_EQ(Marked({{L"a", L"1 a", kWritten}, {L"a", L"2 a", kWritten}}),
            (std::vector{kWrittenOver, kWritten}));
  EXPECT_EQ(Marked({{L"a", L"2 a", kWritten}, {L"a", L"2 a", kEmpty}}),
            (std::vector{kWrittenOver, kEmpty}));
  EXPECT_TRUE(IsThere(kWrittenAgain));
  EXPECT_FALSE(IsThere(kWrittenOver));
}

}  // namespace
}  // namespace qm
