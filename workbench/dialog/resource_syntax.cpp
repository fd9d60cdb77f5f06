// Reads the bracket grammar of dialog resource files.
#include "workbench/dialog/resource_syntax.h"

#include <cctype>

#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

// Far beyond any real dialog; keeps a damaged file from exhausting the stack.
constexpr int kDeepestNesting = 100;

class SyntaxParser {
 public:
  SyntaxParser(std::string_view text, const std::string& file)
      : text_(WithoutBom(text)), file_(file) {}

  SyntaxNode ParseFile() {
    SkipBlank();
    if (AtEnd()) Fail(line_, "the file holds no (Dialog ...)");
    if (Peek() != '(') Fail(line_, "expected '(' at the start");
    SyntaxNode root = ParseList(0);
    SkipBlank();
    if (!AtEnd()) Fail(line_, "unexpected text after the closing ')' of the dialog");
    return root;
  }

 private:
  [[noreturn]] void Fail(int line, const std::string& reason) const {
    throw ResourceError(file_, line, reason);
  }

  bool AtEnd() const { return position_ == text_.size(); }
  char Peek() const { return text_[position_]; }

  char Take() {
    const char c = text_[position_++];
    if (c == '\n') ++line_;
    return c;
  }

  void SkipBlank() {
    while (!AtEnd()) {
      if (Peek() == '!') {
        while (!AtEnd() && Peek() != '\n') Take();
      } else if (std::isspace(static_cast<unsigned char>(Peek()))) {
        Take();
      } else {
        return;
      }
    }
  }

  SyntaxNode ParseList(int depth) {
    SyntaxNode list{SyntaxNode::Type::kList, line_, {}, {}};
    if (depth > kDeepestNesting) Fail(line_, "brackets are nested too deeply");
    Take();
    for (SkipBlank(); !AtEnd() && Peek() != ')'; SkipBlank()) {
      list.children.push_back(ParseItem(depth));
    }
    if (AtEnd()) Fail(list.line, "'(' is never closed");
    Take();
    return list;
  }

  SyntaxNode ParseItem(int depth) {
    if (Peek() == '(') return ParseList(depth + 1);
    return Peek() == '"' ? ParseString() : ParseWord();
  }

  SyntaxNode ParseString() {
    SyntaxNode node{SyntaxNode::Type::kString, line_, {}, {}};
    Take();
    while (true) {
      if (AtEnd() || Peek() == '\n') Fail(node.line, "the string is not closed on its line");
      const char c = Take();
      if (c == '"') break;
      node.text += c == '\\' ? TakeEscaped(node.line) : c;
    }
    if (!IsUtf8(node.text)) Fail(node.line, "the string is not UTF-8");
    return node;
  }

  char TakeEscaped(int line) {
    if (AtEnd()) Fail(line, "the string is not closed on its line");
    const char c = Take();
    if (c == 'n') return '\n';
    if (c != '"' && c != '\\') Fail(line, std::string("unknown escape \\") + c);
    return c;
  }

  SyntaxNode ParseWord() {
    SyntaxNode node{SyntaxNode::Type::kWord, line_, {}, {}};
    while (!AtEnd() && IsWordCharacter(Peek())) node.text += Take();
    if (node.text.empty()) Fail(line_, "text outside quotes must be plain letters and digits");
    return node;
  }

  static bool IsWordCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x80 && (std::isalnum(byte) || c == '_' || c == '.' || c == '-' || c == '+');
  }

  std::string_view text_;
  const std::string& file_;
  std::size_t position_ = 0;
  int line_ = 1;
};

}  // namespace

bool SyntaxNode::IsForm(std::string_view head) const {
  return IsList() && !children.empty() && children.front().IsWord() &&
         children.front().text == head;
}

SyntaxNode ParseSyntax(std::string_view text, const std::string& file) {
  return SyntaxParser(text, file).ParseFile();
}

}  // namespace wb
