// The script language: lines that read as meant, and errors that help.
#include "workbench/language/script_parser.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

// A small language with every kind of pattern. Nothing is carried out here.
constexpr StatementAction kNothing = nullptr;
// clang-format off
constexpr StatementForm kForms[] = {
    {"start",                                           kTopPlace,       kNothing},
    {"part NAME",                                       kTopPlace,       kNothing},
    {"open MODEL",                                      kTopPlace,       kNothing},
    {"mode MODE",                                       kTopPlace,       kNothing},
    {"surface MODEL X Y Z X2 Y2 Z2",                    kTopPlace,       kNothing},
    {"component MODEL <- COMPONENT {[id ID] [STATE:active|suppressed] [hidden] [missing] "
     "[at X Y Z] [times TIMES]}",                       kTopPlace,       kNothing},
    {"fault FUNCTION NTH empty [from_then_on]",         kTopPlace,       kNothing},
    {"fault FUNCTION NTH status STATUS [from_then_on]", kTopPlace,       kNothing},
    {"run COMMAND with",                                kTopOrDialog,    kNothing, kAnswerPlace},
    {"run COMMAND",                                     kTopOrDialog,    kNothing},
    {"dialog NAME",                                     kAnswerOrDialog, kNothing, kDialogPlace},
    {"pick cancel",                                     kAnswerOrDialog, kNothing},
    {"at call NTH of FUNCTION",                         kAnswerOrDialog, kNothing, kDialogPlace},
    {"press COMPONENT",                                 kDialogPlace,    kNothing},
    {"close",                                           kDialogPlace,    kNothing},
    {"expect note TEXT",                                kTopOrDialog,    kNothing},
    {"expect STATE:hidden|shown PATH...",               kTopOrDialog,    kNothing},
};
// clang-format on

ParsedScript Parsed(const std::string& text) {
  return ParseScript(text, "s.qms", kForms);
}

// "LINE: REASON" of each error, one a line.
std::string ErrorsOf(const std::string& text) {
  std::string errors;
  for (const LineError& error : Parsed(text).errors) {
    errors += std::to_string(error.line) + ": " + error.reason + "\n";
  }
  return errors;
}

Statement Single(const std::string& line) {
  const ParsedScript script = Parsed(line);
  EXPECT_EQ(ErrorsOf(line), "");
  return script.statements.size() == 1 ? script.statements[0] : Statement{};
}

TEST(Script, TextsKnowEscapesCommentsAndRepetition) {
  const struct {
    const char* line;
    const char* text;
  } cases[] = {
      {"expect note \"\\ta \\\"b\\\" \\\\ c\\n\"", "\ta \"b\" \\ c\n"},
      {"expect note \"ab\"*3 # not this", "ababab"},
      {"expect note \"\"", ""},
      {"expect note \"# no comment\"", "# no comment"},
      {"\xEF\xBB\xBF"
       "expect note 螺栓\r\n",
       "螺栓"},
  };
  for (const auto& item : cases) EXPECT_EQ(Single(item.line).Text("TEXT"), item.text) << item.line;
}

TEST(Script, BadTextsAreToldWithTheirLine) {
  EXPECT_EQ(ErrorsOf("start\nexpect note \"open\n"), "2: a quoted text is not closed\n");
  EXPECT_EQ(ErrorsOf("\n\nexpect note \"a\\q\""),
            "3: a backslash in a quoted text stands before t, n, r, \" or another backslash\n");
  EXPECT_EQ(ErrorsOf("expect note a\"b"),
            "1: a quote inside the word a\"b; quote the whole text\n");
  EXPECT_EQ(ErrorsOf("expect note \"a\"*9999999"),
            "1: a whole number of repetitions must follow \"...\"*\n");
  EXPECT_EQ(ErrorsOf("part \xFFx"), "1: not UTF-8; save the script as UTF-8\n");
}

TEST(Script, OptionsComeInAnyOrderAndOnce) {
  const Statement component = Single("component top <- bolt hidden at 1 -2.5 3 times 4 suppressed");
  EXPECT_EQ(component.Decimal("Y"), -2.5);
  EXPECT_EQ(component.Text("STATE"), "suppressed");
  EXPECT_TRUE(component.Has("hidden") && !component.Has("missing"));
  EXPECT_EQ(ErrorsOf("component top <- bolt hidden hidden").find("1: \"hidden\" is one word too"),
            0u);
}

TEST(Script, MistakesAreToldTogetherAndTheNearestWordIsOffered) {
  const struct {
    const char* text;
    const char* errors;
  } cases[] = {
      {"opne bolt", "1: unknown statement \"opne\"; did you mean \"open\"?\n"},
      {"expect hiden bolt",
       "1: \"hiden\" does not fit after \"expect\"; it reads: expect note TEXT or: "
       "expect STATE:hidden|shown PATH...; did you mean \"hidden\"?\n"},
      {"surface bolt 1 2 x 4 5 6",
       "1: \"x\" is not a number; it reads: surface MODEL X Y Z X2 Y2 Z2\n"},
      {"mode assembyl", "1: \"assembyl\" is not a mode such as assembly; it reads: mode MODE\n"},
      {"fault any 0 status general_error",
       "1: \"0\" is not a count from 1; it reads: fault FUNCTION NTH empty [from_then_on] or: "
       "fault FUNCTION NTH status STATUS [from_then_on]\n"},
      {"press Add", "1: \"press COMPONENT\" stands inside a \"dialog\" block\n"},
      {"pick cancel", "1: \"pick cancel\" stands among the answers of \"run ... with\"\n"},
      {"run A with\n start\nend", "2: \"start\" stands at the top level of a script\n"},
      {"run A with\n dialog A\n",
       "1: this block is not closed by \"end\"\n"
       "2: this block is not closed by \"end\"\n"},
      {"end\nstart\nend",
       "1: \"end\" without a block that it closes\n"
       "3: \"end\" without a block that it closes\n"},
  };
  for (const auto& item : cases) EXPECT_EQ(ErrorsOf(item.text), item.errors) << item.text;
}

TEST(Script, AFaultyLineThatOpensABlockIsOneError) {
  EXPECT_EQ(ErrorsOf("rum A with\n pick cancel\nend\nstart"),
            "1: unknown statement \"rum\"; did you mean \"run\"?\n");
  EXPECT_EQ(ErrorsOf("run A with\n at call 0 of B\n  close\n end\nend\nstart"),
            "2: \"0\" is not a count from 1; it reads: at call NTH of FUNCTION\n");
}

}  // namespace
}  // namespace wb
