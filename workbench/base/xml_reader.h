// Walks an XML document from front to back, one element after the other, without keeping it: sheets
// of workbooks grow large. Names are compared without their namespace prefix.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "workbench/base/line_error.h"

namespace wb {

class XmlReader {
 public:
  // `text` must outlive the reader; `name` is what errors name. Throws LineError for a document
  // that is not well formed, not UTF-8, declares a document type, or is nested beyond reason.
  XmlReader(std::string_view text, std::string name);

  // Enters the root element.
  void EnterRoot();
  // The element that was entered last and is still open.
  std::string_view Name() const { return open_.back(); }
  bool Is(std::string_view name) const { return Name() == name; }
  // Its attribute; empty when it has none of that name.
  std::string Attribute(std::string_view name) const;
  bool HasAttribute(std::string_view name) const;

  // Calls `visit` for each child of the open element, the child being open then, and leaves the
  // element. What a visit does not walk through is passed over.
  void EachChild(const std::function<void()>& visit);
  // All text inside the open element, which is left.
  std::string Text();

  [[noreturn]] void Fail(const std::string& why) const;

 private:
  enum class Piece { kStart, kText, kEnd };
  Piece Next();
  void SkipTo(size_t depth);
  Piece StartTag();
  Piece EndTag();
  bool SkipMarkup();
  void PassBlanks();
  std::string_view NameToken();
  void ReadAttributes();
  std::string Decoded(std::string_view raw) const;
  size_t Find(std::string_view mark) const;
  bool StartsWith(std::string_view mark) const { return text_.substr(at_).starts_with(mark); }

  std::string_view text_;
  std::string name_;
  size_t at_ = 0;
  std::vector<std::string_view> open_;       // local names
  std::vector<std::string_view> full_open_;  // as written
  std::vector<std::pair<std::string_view, std::string>> attributes_;
  std::string piece_text_;
  bool closes_itself_ = false;
};

}  // namespace wb
