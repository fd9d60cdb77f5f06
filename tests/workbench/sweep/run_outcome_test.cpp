// What a sweep says of a run that met a fault.
#include "workbench/sweep/run_outcome.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

const std::string kEnd = "QmBom ended with PRO_TK_NO_ERROR";

// Writes one file, and says so in its closing line.
RunOutcome Clean() {
  RunOutcome clean;
  clean.logged = {kEnd + ", 5 components, 3 rows: done"};
  clean.state = {{"file bill", "five"}, {"setting", "kept"}};
  return clean;
}
const SessionState kBefore = {{"setting", "kept"}};

std::string HarmOf(const RunOutcome& outcome) {
  return UntoldHarm(outcome, Clean(), kBefore);
}

TEST(RunOutcomes, WhatIsLeftUndoneIsToldByMoreThanACount) {
  RunOutcome outcome = Clean();
  EXPECT_EQ(HarmOf(outcome), "");
  outcome.state.erase("file bill");
  EXPECT_EQ(HarmOf(outcome),
            "work left undone without a word: file bill is nothing instead of \"five\"");
  outcome.logged = {kEnd + ", 4 components, 3 rows: done"};
  EXPECT_EQ(HarmOf(outcome),
            "work left undone without a word: file bill is nothing instead of \"five\"");
  outcome.logged = {kEnd + ", 4 components, 3 rows, 1 left out: done in part"};
  EXPECT_EQ(HarmOf(outcome), "");
  outcome.logged = {kEnd + ", 4 components, 3 rows, 1 failures passed over: done in part"};
  EXPECT_EQ(HarmOf(outcome), "");
}

TEST(RunOutcomes, ABoxBesideAClosingLineOfSuccessIsNotEnough) {
  RunOutcome outcome = Clean();
  outcome.state.erase("file bill");
  outcome.said = {"the bill cannot be written"};
  EXPECT_NE(HarmOf(outcome).find("the run log says \"QmBom ended"), std::string::npos);
  outcome.logged = {kEnd + ", 5 components, 3 rows: told \"the bill cannot be written\""};
  EXPECT_EQ(HarmOf(outcome), "");
}

TEST(RunOutcomes, ValuesThatNobodyHadAreNamed) {
  RunOutcome outcome = Clean();
  outcome.state["setting"] = "";
  EXPECT_EQ(HarmOf(outcome), "without a word setting became \"\", without a fault \"kept\"");
}

}  // namespace
}  // namespace wb
