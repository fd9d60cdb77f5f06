// Tags, text and references of XML documents.
#include "workbench/base/xml_reader.h"

#include <algorithm>
#include <cstdlib>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"

namespace wb {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
// Workbooks need ten; more would only cost memory.
constexpr size_t kDeepestNesting = 256;
constexpr size_t kMostAttributes = 256;

std::string_view LocalName(std::string_view name) {
  const size_t colon = name.find(':');
  return colon == name.npos ? name : name.substr(colon + 1);
}

struct NamedCharacter {
  std::string_view name;
  char character;
};
constexpr NamedCharacter kNamedCharacters[] = {
    {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};

std::string Utf8Of(unsigned long code) {
  if (code < 0x10000) return FromUtf16(std::u16string(1, static_cast<char16_t>(code)));
  code -= 0x10000;
  return FromUtf16(std::u16string{static_cast<char16_t>(0xd800 + (code >> 10)),
                                  static_cast<char16_t>(0xdc00 + (code & 0x3ff))});
}

// Controls other than blanks, and the two code points that are no characters. Gives the text's size
// where there is none.
size_t FirstForbidden(std::string_view text) {
  for (size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool control = byte < 0x20 && kBlanks.find(text[i]) == kBlanks.npos;
    const std::string_view three = text.substr(i, 3);
    if (control || three == "\xEF\xBF\xBE" || three == "\xEF\xBF\xBF") return i;
  }
  return text.size();
}

// "amp", "#65" or "#x41"; empty when it is none of these.
std::string Referenced(const std::string& reference) {
  for (const NamedCharacter& row : kNamedCharacters) {
    if (row.name == reference) return std::string(1, row.character);
  }
  if (reference.size() < 2 || reference[0] != '#') return {};
  const bool hexadecimal = reference[1] == 'x';
  char* end = nullptr;
  const char* const digits = reference.c_str() + (hexadecimal ? 2 : 1);
  const unsigned long code = std::strtoul(digits, &end, hexadecimal ? 16 : 10);
  const bool whole = end != digits && *end == '\0';
  const bool surrogate = code >= 0xd800 && code < 0xe000;
  return !whole || code == 0 || code > 0x10ffff || surrogate ? std::string() : Utf8Of(code);
}

}  // namespace

XmlReader::XmlReader(std::string_view text, std::string name)
    : text_(WithoutBom(text)), name_(std::move(name)) {
  if (!IsUtf8(text_)) Fail("not UTF-8");
  at_ = FirstForbidden(text_);
  if (at_ != text_.size()) Fail("a character that no document may hold");
  at_ = 0;
}

void XmlReader::Fail(const std::string& why) const {
  const auto line = std::count(text_.begin(), text_.begin() + static_cast<long>(at_), '\n') + 1;
  throw LineError(name_, static_cast<int>(line), why);
}

void XmlReader::EnterRoot() {
  while (Next() != Piece::kStart) {
  }
}

std::string XmlReader::Attribute(std::string_view name) const {
  for (const auto& [key, value] : attributes_) {
    if (key == name) return value;
  }
  return {};
}

bool XmlReader::HasAttribute(std::string_view name) const {
  return std::any_of(attributes_.begin(), attributes_.end(),
                     [&](const auto& attribute) { return attribute.first == name; });
}

void XmlReader::EachChild(const std::function<void()>& visit) {
  const size_t depth = open_.size();
  for (;;) {
    const Piece piece = Next();
    if (piece == Piece::kStart) {
      visit();
      SkipTo(depth);
    } else if (piece == Piece::kEnd) {
      return;
    }
  }
}

std::string XmlReader::Text() {
  const size_t depth = open_.size();
  std::string text;
  while (open_.size() >= depth) {
    if (Next() == Piece::kText) text += piece_text_;
  }
  return text;
}

void XmlReader::SkipTo(size_t depth) {
  while (open_.size() > depth) Next();
}

size_t XmlReader::Find(std::string_view mark) const {
  const size_t found = text_.find(mark, at_);
  if (found == text_.npos) Fail("\"" + std::string(mark) + "\" is missing");
  return found;
}

XmlReader::Piece XmlReader::Next() {
  if (closes_itself_) {
    closes_itself_ = false;
    open_.pop_back();
    full_open_.pop_back();
    return Piece::kEnd;
  }
  while (SkipMarkup()) {
  }
  if (at_ == text_.size()) Fail("the document ends inside an element");
  if (StartsWith("</")) return EndTag();
  constexpr std::string_view kData = "<![CDATA[";
  if (StartsWith(kData)) {
    const size_t end = Find("]]>");
    piece_text_ = text_.substr(at_ + kData.size(), end - at_ - kData.size());
    at_ = end + 3;
    return Piece::kText;
  }
  if (text_[at_] == '<') return StartTag();
  const size_t end = std::min(text_.find('<', at_), text_.size());
  piece_text_ = Decoded(text_.substr(at_, end - at_));
  at_ = end;
  if (open_.empty() && piece_text_.find_first_not_of(kBlanks) != std::string::npos) {
    Fail("text outside the root element");
  }
  return Piece::kText;
}

// Comments and processing instructions say nothing to us.
bool XmlReader::SkipMarkup() {
  if (StartsWith("<!DOCTYPE")) Fail("document types are not taken");
  if (StartsWith("<!--")) {
    at_ = Find("-->") + 3;
    return true;
  }
  if (!StartsWith("<?")) return false;
  at_ = Find("?>") + 2;
  return true;
}

XmlReader::Piece XmlReader::StartTag() {
  ++at_;
  const std::string_view name = NameToken();
  ReadAttributes();
  closes_itself_ = StartsWith("/");
  if (closes_itself_) ++at_;
  if (!StartsWith(">")) Fail("the tag of \"" + std::string(name) + "\" has no end");
  ++at_;
  if (open_.size() == kDeepestNesting) {
    Fail("elements are nested more than " + std::to_string(kDeepestNesting) + " deep");
  }
  full_open_.push_back(name);
  open_.push_back(LocalName(name));
  return Piece::kStart;
}

XmlReader::Piece XmlReader::EndTag() {
  at_ += 2;
  const std::string_view name = NameToken();
  PassBlanks();
  if (open_.empty() || name != full_open_.back()) {
    Fail("\"" + std::string(name) + "\" ends where another element is open");
  }
  if (!StartsWith(">")) Fail("the end of \"" + std::string(name) + "\" is not closed");
  ++at_;
  open_.pop_back();
  full_open_.pop_back();
  return Piece::kEnd;
}

void XmlReader::PassBlanks() {
  at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size());
}

std::string_view XmlReader::NameToken() {
  const size_t end = std::min(text_.find_first_of(" \t\r\n/>=<", at_), text_.size());
  if (end == at_) Fail("a name is missing");
  const std::string_view name = text_.substr(at_, end - at_);
  at_ = end;
  return name;
}

void XmlReader::ReadAttributes() {
  attributes_.clear();
  for (PassBlanks(); at_ < text_.size() && !StartsWith("/") && !StartsWith(">"); PassBlanks()) {
    const std::string_view name = NameToken();
    if (attributes_.size() == kMostAttributes) {
      Fail("an element has more than " + std::to_string(kMostAttributes) + " attributes");
    }
    PassBlanks();
    if (!StartsWith("=")) Fail("attribute \"" + std::string(name) + "\" has no value");
    ++at_;
    PassBlanks();
    if (!StartsWith("\"") && !StartsWith("'")) {
      Fail("the value of \"" + std::string(name) + "\" is not quoted");
    }
    const std::string_view quote = text_.substr(at_, 1);
    ++at_;
    const size_t end = Find(quote);
    attributes_.emplace_back(LocalName(name), Decoded(text_.substr(at_, end - at_)));
    at_ = end + 1;
  }
}

std::string XmlReader::Decoded(std::string_view raw) const {
  std::string text;
  text.reserve(raw.size());
  for (size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == '\r') {
      // Line ends of any system are one line feed.
      if (i + 1 == raw.size() || raw[i + 1] != '\n') text += '\n';
    } else if (raw[i] == '&') {
      const size_t end = raw.find(';', i);
      const std::string reference(raw.substr(i + 1, end == raw.npos ? 0 : end - i - 1));
      const std::string character = Referenced(reference);
      if (character.empty()) Fail("unknown reference \"&" + reference + ";\"");
      text += character;
      i = end;
    } else {
      text += raw[i];
    }
  }
  return text;
}

}  // namespace wb
