// Message files: what they may hold, how their mistakes are told, how their texts are filled in.
#include "workbench/base/message_file.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "tests/workbench/error_from.h"

namespace wb {
namespace {

std::string Repeated(const std::string& text, int times) {
  std::string repeated;
  while (times-- > 0) repeated += text;
  return repeated;
}

TEST(MessageFile, KeysAreExactAndTranslationsPreferred) {
  const MessageFile file = MessageFile::Parse(
      "\xEF\xBB\xBFUSER Enter a name: \r\nEnter a name: \r\n请输入名称: \r\n\r\n"
      "Done\nDone.\n\n",
      "m.txt");
  ASSERT_EQ(file.Records().size(), 2u);
  EXPECT_EQ(file.Find("USER Enter a name:"), nullptr);  // the blank at its end belongs to the key
  ASSERT_NE(file.Find("USER Enter a name: "), nullptr);
  EXPECT_EQ(file.Find("USER Enter a name: ")->Text(), "请输入名称: ");
  EXPECT_EQ(file.Find("Done")->Text(), "Done.");
  EXPECT_EQ(file.Find("Done")->line, 5);
}

TEST(MessageFile, ClassCodeBeforeTheKeyIsNoPartOfIt) {
  const auto file = MessageFile::Parse("%CWKey\ntext\n\n\n", "m.txt");
  ASSERT_NE(file.Find("Key"), nullptr);
  EXPECT_EQ(file.Find("Key")->message_class, MessageClass::kWarning);
}

TEST(MessageFile, MistakesNameTheirLine) {
  const struct {
    std::string text;
    int line;
    const char* reason;
  } cases[] = {
      {"a\ntext\n\n\n\nb\n", 5, "found a blank line"},
      {"a\ntext\n\n\nb\ntext", 6, "ends early"},
      {"a\n\n\n\n", 2, "is empty"},
      {"%CE\ntext\n\n\n", 1, "key is empty"},
      {"a\nt\n\n\nb\nt\n\n\n%CWa\nt\n\n", 9, "given twice, first on line 1"},
      {"a\nt\n" + Repeated("字", 81) + "\n", 3, "has 81 characters"},
      {"a\n\xFF\n\n", 2, "not UTF-8"},
      {"a\n%0x\n\n", 2, "argument type 'x'"},
      {"a\n%0w %0d\n\n", 2, "two types"},
      {"a\n%1w\n\n", 2, "%0 is left out"},
      {"a\n%0w\n%0s\n", 3, "uses %0s, which the text does not"},
  };
  for (const auto& item : cases) {
    const std::string error = ErrorFrom([&] { MessageFile::Parse(item.text, "m.txt"); });
    ExpectError(error, "m.txt:" + std::to_string(item.line) + ": ", item.reason);
  }
}

TEST(MessageText, ArgumentsAreFilledInByTheirIndex) {
  const std::vector<MessageArg> args = {std::string("泵%1d"), std::int64_t{-3}, 0.5};
  EXPECT_EQ(FormatMessageText("%1d x %0w = %2f, 100% %0s", args),
            "-3 x 泵%1d = 0.500000, 100% 泵%1d");
  EXPECT_THROW(FormatMessageText("%3d", args), std::invalid_argument);
  EXPECT_THROW(FormatMessageText("%0d", args), std::invalid_argument);
}

TEST(MessageText, PromptOffersTheReplyBehindItsBars) {
  EXPECT_EQ(SplitPrompt("Name:|||PUMP").prompt, "Name:");
  EXPECT_EQ(SplitPrompt("Name:|||PUMP").default_reply, "PUMP");
  EXPECT_EQ(SplitPrompt("Name: ").prompt, "Name: ");
  EXPECT_EQ(SplitPrompt("Name: ").default_reply, "");
}

}  // namespace
}  // namespace wb
