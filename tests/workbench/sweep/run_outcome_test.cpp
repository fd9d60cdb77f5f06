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

// What a model holds for good is what it had or what it gets, told or not.
TEST(RunOutcomes, ModelsGetNoValueThatIsNeitherTheirOldNorTheirNewOne) {
  const SessionState before = {
      {"a.prt version", "1"},    {"a.prt relations", "x=1"}, {"a.prt material", ""},
      {"b.prt version", "1"},    {"b.prt material", ""},     {"b.prt relations", "none"},
      {"a.prt colour", "0 0 0"}, {"b.prt colour", "0 0 0"},  {"a.prt surfaces/1/max", "1 1 1"},
      {"a.prt note", "by hand"},
  };
  RunOutcome clean;
  clean.state = before;
  clean.state["a.prt relations"] = "x=1\ny=2";
  clean.state["b.prt relations"] = "y=2";
  clean.state["a.prt material"] = "q235";
  clean.state["a.prt colour"] = "1 0 0";
  clean.state["b.prt colour"] = "0 1 0";
  const auto wrong = [&](const std::string& name, const std::string& value) {
    RunOutcome outcome = clean;
    outcome.logged = {"QmBom ended with PRO_TK_NO_ERROR, 1 left out: done in part"};
    outcome.state[name] = value;
    return WrongValue(outcome, clean, before);
  };
  EXPECT_EQ(wrong("a.prt relations", "x=1"), "");
  EXPECT_EQ(wrong("a.prt relations", "y=2"),
            "a.prt relations became \"y=2\", before \"x=1\", without a fault \"x=1\ny=2\"");
  EXPECT_EQ(wrong("b.prt relations", ""), "");
  EXPECT_NE(wrong("a.prt relations", ""), "");
  EXPECT_NE(wrong("b.prt material", "q235"), "");
  EXPECT_EQ(wrong("a.prt colour", "0 1 0"), "");
  EXPECT_NE(wrong("a.prt colour", "0 0 1"), "");
  EXPECT_NE(wrong("a.prt surfaces/1/max", "25 25 25"), "");
  // Models that came to be, and other facts, are judged where nothing was told.
  EXPECT_EQ(wrong("c.prt material", "q235"), "");
  EXPECT_EQ(wrong("a.prt note", ""), "");
}

}  // namespace
}  // namespace wb
