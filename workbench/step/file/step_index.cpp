// The grammar of the exchange structure: header, data sections, plain and complex instances.
#include "workbench/step/file/step_index.h"

#include <algorithm>
#include <charconv>

namespace wb {
namespace {

// Real files nest three or four lists; more is garbage that would only cost stack.
constexpr int kDeepestNesting = 64;

std::string Capitals(std::string_view name) {
  std::string capitals(name);
  for (char& c : capitals) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
  }
  return capitals;
}

bool IsValue(StepToken token) {
  return token == StepToken::kReference || token == StepToken::kNumber ||
         token == StepToken::kString || token == StepToken::kEnumeration ||
         token == StepToken::kBinary || token == StepToken::kOmitted ||
         token == StepToken::kDerived || token == StepToken::kUri;
}

}  // namespace

std::uint64_t ReadStepId(const StepSource& source, const StepWord& word) {
  std::uint64_t id = 0;
  const char* end = word.text.data() + word.text.size();
  if (std::from_chars(word.text.data(), end, id).ec != std::errc()) {
    source.Fail(word.offset, "the instance number " + ShowStepWord(word) + " is too large");
  }
  return id;
}

StepWord StepIndexer::Expect(StepToken token, std::string_view what) {
  const StepWord word = lexer_.Next();
  if (word.token == token) return word;
  if (word.token == StepToken::kEnd) {
    lexer_.Fail(word, "the file ends where " + std::string(what) + " is due; it was cut short");
  }
  lexer_.Fail(word, std::string(what) + " is expected, but here stands " + ShowStepWord(word));
}

void StepIndexer::CheckOpening() {
  const std::string& text = file_.source_->text;
  const std::string_view start = std::string_view(text).substr(0, 8);
  if (text.empty()) file_.source_->Fail(0, "the file is empty");
  if (start.starts_with("PK\x03\x04") || start.starts_with("\x1f\x8b")) {
    file_.source_->Fail(0, "this is a compressed file",
                        "unpack it first and import the .stp file in it");
  }
  if (start.starts_with("<?xml") || start.starts_with("\xEF\xBB\xBF<?")) {
    file_.source_->Fail(0, "this is an XML file, not a STEP exchange file",
                        "export from the CAD system as .stp");
  }
  lexer_ = StepLexer(*file_.source_, start.starts_with("\xEF\xBB\xBF") ? 3 : 0);
  bool opens = false;
  try {
    opens = lexer_.Next().text == "ISO-10303-21" && lexer_.Next().token == StepToken::kSemicolon;
  } catch (const StepError&) {  // a stray character says the same as a wrong word
  }
  if (!opens) {
    file_.source_->Fail(0, "this is no STEP file: it does not begin with ISO-10303-21;",
                        "choose a .stp or .step file");
  }
}

void StepIndexer::Run() {
  CheckOpening();
  bool has_data = false;
  for (;;) {
    const StepWord word = Expect(StepToken::kKeyword, "a section or END-ISO-10303-21");
    const std::string name = Capitals(word.text);
    if (name == "END-ISO-10303-21") break;
    if (name == "HEADER") {
      ReadHeader();
    } else if (name == "DATA") {
      has_data = true;
      ReadData();
    } else if (name == "REFERENCE") {
      ReadExternals();
    } else if (name == "ANCHOR" || name == "SIGNATURE") {
      if (!lexer_.SkipBehind("ENDSEC")) lexer_.Fail(word, "this section has no ENDSEC");
      Expect(StepToken::kSemicolon, "';'");
    } else {
      lexer_.Fail(word, ShowStepWord(word) + " is no section of a STEP file");
    }
  }
  if (!has_data) file_.source_->Fail(0, "the file has no DATA section");
  SortRecords();
}

bool StepIndexer::IsSectionEnd(const StepWord& word) {
  if (word.token == StepToken::kEnd) {
    lexer_.Fail(word, "the file ends inside a section (ENDSEC is missing); it was cut short");
  }
  if (word.token != StepToken::kKeyword || Capitals(word.text) != "ENDSEC") return false;
  Expect(StepToken::kSemicolon, "';'");
  return true;
}

void StepIndexer::ReadHeader() {
  Expect(StepToken::kSemicolon, "';'");
  for (;;) {
    const StepWord word = lexer_.Next();
    if (IsSectionEnd(word)) return;
    if (word.token != StepToken::kKeyword) {
      lexer_.Fail(word, "a header entry is expected, but here stands " + ShowStepWord(word));
    }
    const StepWord open = Expect(StepToken::kOpen, "'('");
    ReadValues();
    Expect(StepToken::kSemicolon, "';'");
    if (Capitals(word.text) != "FILE_SCHEMA") continue;
    StepLexer schema(*file_.source_, open.offset + 1);
    StepWord value = schema.Next();
    while (value.token == StepToken::kOpen) value = schema.Next();
    if (value.token == StepToken::kString) file_.schema_ = value.text;
  }
}

void StepIndexer::ReadData() {
  StepWord word = lexer_.Next();
  if (word.token == StepToken::kOpen) {  // DATA('name',('SCHEMA')); of a file with several
    ReadValues();
    word = lexer_.Next();
  }
  if (word.token != StepToken::kSemicolon) lexer_.Fail(word, "';' is missing behind DATA");
  for (;;) {
    word = lexer_.Next();
    if (IsSectionEnd(word)) return;
    if (word.token != StepToken::kReference) {
      lexer_.Fail(word,
                  "an instance (#number = ...) is expected, but here stands " + ShowStepWord(word));
    }
    ReadInstance(word);
  }
}

void StepIndexer::ReadInstance(const StepWord& reference) {
  const std::uint64_t id = ReadStepId(*file_.source_, reference);
  Expect(StepToken::kEquals, "'='");
  StepWord word = lexer_.Next();
  const std::size_t offset = word.offset;
  type_name_.clear();
  if (word.token == StepToken::kKeyword) {
    type_name_ = word.text;
    Expect(StepToken::kOpen, "'('");
    ReadValues();
  } else if (word.token == StepToken::kOpen) {
    for (word = lexer_.Next(); word.token == StepToken::kKeyword; word = lexer_.Next()) {
      if (!type_name_.empty()) type_name_ += ' ';
      type_name_ += word.text;
      Expect(StepToken::kOpen, "'('");
      ReadValues();
    }
    if (word.token != StepToken::kClose || type_name_.empty()) {
      lexer_.Fail(word, "an entity name is expected, but here stands " + ShowStepWord(word));
    }
  } else {
    lexer_.Fail(word, "an entity name is expected, but here stands " + ShowStepWord(word));
  }
  Expect(StepToken::kSemicolon, "';' behind an instance");
  AddRecord(id, offset);
}

// Reads on behind the bracket that closes the values; the opening one has been read.
void StepIndexer::ReadValues() {
  int depth = 1;
  bool value_due = true;     // behind '(' or ','
  bool may_be_empty = true;  // behind '('
  while (depth > 0) {
    StepWord word = lexer_.Next();
    if (word.token == StepToken::kKeyword && value_due) {
      word = Expect(StepToken::kOpen, "'(' behind a type name");
    }
    if (word.token == StepToken::kOpen && value_due) {
      if (++depth > kDeepestNesting) lexer_.Fail(word, "the lists are nested too deeply");
      may_be_empty = true;
    } else if (word.token == StepToken::kClose && (!value_due || may_be_empty)) {
      --depth;
      value_due = may_be_empty = false;
    } else if (word.token == StepToken::kComma && !value_due) {
      value_due = true;
    } else if (IsValue(word.token) && value_due) {
      value_due = may_be_empty = false;
    } else if (word.token == StepToken::kEnd) {
      lexer_.Fail(word, "the file ends inside an instance; it was cut short");
    } else {
      lexer_.Fail(word, std::string(value_due ? "a value" : "',' or ')'") +
                            " is expected, but here stands " + ShowStepWord(word));
    }
  }
}

// REFERENCE; #12 = <other.stp#7>; ... ENDSEC;
void StepIndexer::ReadExternals() {
  Expect(StepToken::kSemicolon, "';'");
  for (;;) {
    const StepWord word = lexer_.Next();
    if (IsSectionEnd(word)) return;
    if (word.token != StepToken::kReference) {
      lexer_.Fail(word, "a reference is expected, but here stands " + ShowStepWord(word));
    }
    Expect(StepToken::kEquals, "'='");
    const StepWord uri = Expect(StepToken::kUri, "an address in <>");
    Expect(StepToken::kSemicolon, "';'");
    file_.externals_.push_back({ReadStepId(*file_.source_, word), uri.text});
  }
}

void StepIndexer::AddRecord(std::uint64_t id, std::size_t offset) {
  auto known = type_numbers_.find(type_name_);
  if (known == type_numbers_.end()) {
    StepType type;
    std::string_view rest = type_name_;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      type.names.push_back(Capitals(rest.substr(0, end)));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    known = type_numbers_.emplace(type_name_, file_.types_.size()).first;
    file_.types_.push_back(std::move(type));
  }
  file_.records_.push_back({id, offset, known->second});
}

void StepIndexer::SortRecords() {
  auto& records = file_.records_;
  const auto by_id = [](const StepRecord& a, const StepRecord& b) {
    return a.id != b.id ? a.id < b.id : a.offset < b.offset;
  };
  if (!std::is_sorted(records.begin(), records.end(), by_id)) {
    std::sort(records.begin(), records.end(), by_id);
  }
  const auto twin =
      std::adjacent_find(records.begin(), records.end(),
                         [](const StepRecord& a, const StepRecord& b) { return a.id == b.id; });
  if (twin != records.end()) {
    file_.Fail(*(twin + 1), "#" + std::to_string(twin->id) + " is given twice, first in line " +
                                std::to_string(file_.LineOf(*twin)));
  }
  std::sort(file_.externals_.begin(), file_.externals_.end(),
            [](const auto& a, const auto& b) { return a.id < b.id; });
}

}  // namespace wb
