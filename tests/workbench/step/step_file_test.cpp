// What the exchange-structure reader accepts, what it refuses, and with which line.
#include "workbench/step/file/step_file.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/workbench/error_from.h"
#include "workbench/step/file/step_text.h"

namespace wb {
namespace {

// Puts instances from line 5 on into an otherwise complete file.
std::string WholeFile(const std::string& instances) {
  return "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('CONFIG_CONTROL_DESIGN'));ENDSEC;\nDATA;\n" +
         instances + "\nENDSEC;\nEND-ISO-10303-21;\n";
}

StepFile Parsed(const std::string& instances) {
  return StepFile::Parse(WholeFile(instances), "bolt.stp");
}

TEST(StepFile, GivesEveryKindOfValueAndLooksThroughCommentsAndLineBreaks) {
  const StepFile file = Parsed(
      "#7 /* a; comment ' */ = THING('it''s', $, *, -1.5E1, .T., \"0F\", #9,\n"
      " (1, (2., +3)), LENGTH_MEASURE(.5), ());\n#9=thing();");
  EXPECT_EQ(file.schema(), "CONFIG_CONTROL_DESIGN");
  const StepArguments values = file.Arguments(*file.Find(7));
  ASSERT_EQ(values.size(), 10u);
  EXPECT_EQ(values.OptionalText(0), "it's");
  EXPECT_EQ(values.At(1).kind, StepValue::Kind::kOmitted);
  EXPECT_EQ(values.At(2).kind, StepValue::Kind::kDerived);
  EXPECT_EQ(values.Number(3), -15);
  EXPECT_TRUE(values.Boolean(4));
  EXPECT_EQ(values.At(5).kind, StepValue::Kind::kBinary);
  EXPECT_EQ(&values.Reference(6), file.Find(9));
  EXPECT_EQ(values.At(7).items[1].items[1].number, 3);
  EXPECT_EQ(values.Number(8), 0.5);
  EXPECT_TRUE(values.At(9).items.empty());
  EXPECT_EQ(file.TypeName(*file.Find(9)), "THING");
}

TEST(StepFile, ReadsSplitAndPlainInstancesByTheSamePositions) {
  const StepFile file = Parsed(
      "#1=( B_SPLINE_CURVE(2,(#2,#2)) REPRESENTATION_ITEM('n') );\n"
      "#2=B_SPLINE_CURVE('n',3,(#1,#1));");
  EXPECT_TRUE(file.TypeOf(*file.Find(1)).Has("REPRESENTATION_ITEM"));
  EXPECT_EQ(file.Arguments(*file.Find(1), "B_SPLINE_CURVE", 1).Number(0), 2);
  EXPECT_EQ(file.Arguments(*file.Find(2), "B_SPLINE_CURVE", 1).Number(0), 3);
}

TEST(StepFile, FindsInstancesOfSeveralSectionsInAnyOrder) {
  const StepFile file = StepFile::Parse(
      "\xEF\xBB\xBFISO-10303-21;\nHEADER;\nENDSEC;\nANCHOR;\n<a>=#1;\nENDSEC;\n"
      "REFERENCE;\n#50=<nut.stp#3>;\nENDSEC;\nDATA('a',('S'));\n#900=A();\n#3=B();\nENDSEC;\n"
      "DATA('b',('S'));\n#18446744073709551615=C();\nENDSEC;\nEND-ISO-10303-21;\n",
      "many.stp");
  for (const std::uint64_t id : {900ull, 3ull, 18446744073709551615ull}) {
    ASSERT_NE(file.Find(id), nullptr) << id;
    EXPECT_EQ(file.Find(id)->id, id);
  }
  for (const std::uint64_t id : {0ull, 4ull, 901ull}) EXPECT_EQ(file.Find(id), nullptr) << id;
  EXPECT_EQ(file.ExternalUri(50), "nut.stp#3");
  EXPECT_EQ(file.LineOf(*file.Find(3)), 12u);
}

struct BadFile {
  std::string text;
  std::size_t line;
  const char* reason;  // a part of it
};

TEST(StepFile, NamesLineAndReasonOfWhatItRefuses) {
  const std::string whole = WholeFile("#1=A();\n#2=B(1,'x');");
  const BadFile cases[] = {
      {"", 1, "empty"},
      {"solid cube\nfacet\n", 1, "no STEP file"},
      {"PK\x03\x04 more", 1, "compressed"},
      {"<?xml version='1.0'?>", 1, "XML"},
      {whole.substr(0, whole.find("x'")), 6, "never closed"},
      {whole.substr(0, whole.find("END-ISO")), 8, "cut short"},
      {"ISO-10303-21;\nHEADER;\nENDSEC;\nEND-ISO-10303-21;", 1, "no DATA"},
      {WholeFile("#1=A();\n#2=A();\n#1=B();"), 7, "given twice, first in line 5"},
      {WholeFile("#1=A();\n#2=B(1 2);"), 6, "',' or ')' is expected"},
      {WholeFile("#1=B(1;\n#2=A();"), 5, "here stands ';'"},
      {WholeFile("#1=A(\x80);"), 5, "unexpected '\\x80'"},
      {WholeFile("#99999999999999999999=A();"), 5, "too large"},
      {WholeFile("#1=A();\n/* never"), 6, "comment is never closed"},
      {WholeFile("#1=A(" + std::string(5000, '(') + ");"), 5, "nested too deeply"},
  };
  for (const BadFile& bad : cases) {
    const std::string error = ErrorFrom([&] { StepFile::Parse(bad.text, "bolt.stp"); });
    ExpectError(error, "bolt.stp:" + std::to_string(bad.line) + ": ", bad.reason);
  }
}

TEST(StepFile, NamesTheLineOfAValueThatIsNotWhatItShouldBe) {
  const StepFile file = Parsed("#1=A();\r\n#2=A('x',1..5,#77,(#1,'y'));");
  const StepRecord& record = *file.Find(2);
  EXPECT_THROW(file.Arguments(record), StepError);  // 1..5 is no number
  const StepFile sound = Parsed("#1=A();\r#2=A('x',#77);");
  const StepArguments values = sound.Arguments(*sound.Find(2));
  const std::function<void()> wrong_uses[] = {
      [&] { values.Number(0); },    [&] { values.Numbers(0); }, [&] { values.Reference(0); },
      [&] { values.Reference(1); }, [&] { values.At(2); },
  };
  for (const auto& wrong_use : wrong_uses) {
    ExpectError(ErrorFrom(wrong_use), "bolt.stp:6: ", "");
  }
}

TEST(StepText, BecomesUtf8WhateverTheWriterUsed) {
  const struct {
    const char* raw;
    const char* text;
  } cases[] = {
      {"O''Neil", "O'Neil"},
      {"\\X2\\87BA6813\\X0\\ M6", "螺栓 M6"},
      {"\\X4\\0001F529\\X0\\", "\U0001F529"},
      {"\\X2\\D83DDD29\\X0\\", "\U0001F529"},
      {"\\X\\E9t\\X\\E9", "été"},
      {"\\S\\i", "é"},
      {"\\PE\\\\S\\0\\S\\1", "АБ"},
      {"螺栓", "螺栓"},
      {"a\xC2\xDD\xCB\xA8", "a\uFFFD\uFFFD\u02E8"},  // GBK: what is UTF-8 by chance stays
      {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
      {"C:\\Xdir\\S", "C:\\Xdir\\S"},
      {"\\X2\\87BA\n6813\\X0\\", "螺栓"},
  };
  for (const auto& c : cases) EXPECT_EQ(DecodeStepText(c.raw), c.text) << c.raw;
}

}  // namespace
}  // namespace wb
