// Access to the instances of a STEP file; values are parsed at the moment they are asked for.
#include "workbench/step/file/step_file.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/step/file/step_index.h"
#include "workbench/step/file/step_text.h"

namespace wb {
namespace {

using Kind = StepValue::Kind;

double ReadNumber(const StepSource& source, const StepWord& word) {
  std::string_view digits = word.text;
  if (digits.starts_with('+')) digits.remove_prefix(1);
  double number = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error == std::errc::result_out_of_range && stop == end) {
    const std::size_t power = digits.find_first_of("Ee");
    if (power != std::string_view::npos && digits.substr(power + 1).starts_with('-')) return 0;
  }
  if (error != std::errc() || stop != end) {
    source.Fail(word.offset, ShowStepWord(word) + " is no number");
  }
  return number;
}

std::vector<StepValue> ReadList(const StepSource& source, StepLexer& lexer);

StepValue ReadValue(const StepSource& source, StepLexer& lexer, const StepWord& word) {
  StepValue value;
  value.text = word.text;
  switch (word.token) {
    case StepToken::kNumber:
      value.kind = Kind::kNumber;
      value.number = ReadNumber(source, word);
      break;
    case StepToken::kReference:
      value.kind = Kind::kReference;
      value.reference = ReadStepId(source, word);
      break;
    case StepToken::kString:
      value.kind = Kind::kText;
      break;
    case StepToken::kEnumeration:
      value.kind = Kind::kEnumeration;
      break;
    case StepToken::kBinary:
      value.kind = Kind::kBinary;
      break;
    case StepToken::kUri:
      value.kind = Kind::kUri;
      break;
    case StepToken::kDerived:
      value.kind = Kind::kDerived;
      break;
    case StepToken::kOpen:
      value.kind = Kind::kList;
      value.items = ReadList(source, lexer);
      break;
    case StepToken::kKeyword:
      lexer.Next();  // the bracket
      value.kind = Kind::kTyped;
      value.items = ReadList(source, lexer);
      break;
    default:
      break;
  }
  return value;
}

// Behind the opening bracket. The indexer has checked the grammar and bounded the nesting.
std::vector<StepValue> ReadList(const StepSource& source, StepLexer& lexer) {
  std::vector<StepValue> values;
  for (;;) {
    const StepWord word = lexer.Next();
    if (word.token == StepToken::kClose || word.token == StepToken::kEnd) return values;
    if (word.token == StepToken::kComma) continue;
    values.push_back(ReadValue(source, lexer, word));
  }
}

void SkipList(StepLexer& lexer) {
  for (int depth = 1; depth > 0;) {
    const StepToken token = lexer.Next().token;
    if (token == StepToken::kOpen) ++depth;
    if (token == StepToken::kClose || token == StepToken::kEnd) --depth;
  }
}

bool SameName(std::string_view written, std::string_view capitals) {
  return std::equal(written.begin(), written.end(), capitals.begin(), capitals.end(),
                    [](char a, char b) { return (a >= 'a' && a <= 'z' ? a - 32 : a) == b; });
}

}  // namespace

bool StepType::Has(std::string_view name) const {
  return std::find(names.begin(), names.end(), name) != names.end();
}

StepFile StepFile::Read(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary | std::ios::ate);
  const std::streamoff size = stream ? std::streamoff(stream.tellg()) : -1;
  std::string text;
  if (size >= 0 && !std::filesystem::is_directory(path)) {
    text.resize(static_cast<std::size_t>(size));
    stream.seekg(0);
    stream.read(text.data(), size);
  }
  if (!stream || size < 0 || std::filesystem::is_directory(path)) {
    throw StepError(PathToUtf8(path), 0, "the file cannot be read",
                    "check its path and that it exists");
  }
  return Parse(std::move(text), PathToUtf8(path));
}

StepFile StepFile::Parse(std::string text, std::string file_name) {
  StepFile file;
  file.source_ = std::make_unique<StepSource>();
  file.source_->file = std::move(file_name);
  file.source_->text = std::move(text);
  StepIndexer(file).Run();
  return file;
}

std::string StepFile::TypeName(const StepRecord& record) const {
  return TypeOf(record).names.back();
}

const StepRecord* StepFile::Find(std::uint64_t id) const {
  if (records_.empty() || id < records_.front().id) return nullptr;
  // Most writers number without gaps, then the place is known.
  const std::uint64_t guess = id - records_.front().id;
  if (guess < records_.size() && records_[guess].id == id) return &records_[guess];
  const auto found =
      std::lower_bound(records_.begin(), records_.end(), id,
                       [](const StepRecord& a, std::uint64_t b) { return a.id < b; });
  return found != records_.end() && found->id == id ? &*found : nullptr;
}

const StepRecord& StepFile::Get(std::uint64_t id, const StepRecord& from) const {
  if (const StepRecord* record = Find(id)) return *record;
  Fail(from, "names #" + std::to_string(id) + ", which is not in the file");
}

std::string_view StepFile::ExternalUri(std::uint64_t id) const {
  const auto found = std::lower_bound(externals_.begin(), externals_.end(), id,
                                      [](const External& a, std::uint64_t b) { return a.id < b; });
  return found != externals_.end() && found->id == id ? found->uri : std::string_view();
}

StepArguments StepFile::Arguments(const StepRecord& record, std::string_view entity,
                                  std::size_t inherited) const {
  StepLexer lexer(*source_, record.offset);
  std::vector<StepValue> values;
  if (lexer.Next().token == StepToken::kKeyword) {
    lexer.Next();
    values = ReadList(*source_, lexer);
    const auto left_out = static_cast<std::ptrdiff_t>(std::min(inherited, values.size()));
    values.erase(values.begin(), values.begin() + left_out);
    return {*this, record, std::move(values)};
  }
  for (StepWord word = lexer.Next(); word.token == StepToken::kKeyword; word = lexer.Next()) {
    lexer.Next();
    if (SameName(word.text, entity)) return {*this, record, ReadList(*source_, lexer)};
    SkipList(lexer);
  }
  Fail(record, "lacks its " + std::string(entity) + " values");
}

std::vector<std::uint64_t> StepFile::References(const StepRecord& record) const {
  StepLexer lexer(*source_, record.offset);
  std::vector<std::uint64_t> ids;
  for (StepWord word = lexer.Next(); word.token != StepToken::kSemicolon; word = lexer.Next()) {
    if (word.token == StepToken::kEnd) break;
    if (word.token == StepToken::kReference) ids.push_back(ReadStepId(*source_, word));
  }
  return ids;
}

void StepFile::Fail(const StepRecord& record, std::string reason) const {
  source_->Fail(record.offset,
                "#" + std::to_string(record.id) + " (" + TypeName(record) + ") " + reason);
}

const StepValue& StepArguments::At(std::size_t index) const {
  if (index >= values_.size()) Expected(index, "one more value");
  return values_[index];
}

void StepArguments::Expected(std::size_t index, std::string_view what) const {
  file_->Fail(*record_, "needs " + std::string(what) + " as value " + std::to_string(index + 1) +
                            " of its list");
}

double StepArguments::Number(std::size_t index) const {
  const StepValue* value = &At(index);
  if (value->kind == Kind::kTyped && value->items.size() == 1) value = &value->items[0];
  if (value->kind != Kind::kNumber) Expected(index, "a number");
  return value->number;
}

std::vector<double> StepArguments::Numbers(std::size_t index) const {
  const StepValue& list = At(index);
  if (list.kind != Kind::kList) Expected(index, "a list of numbers");
  std::vector<double> numbers;
  for (const StepValue& item : list.items) {
    if (item.kind != Kind::kNumber) Expected(index, "a list of numbers");
    numbers.push_back(item.number);
  }
  return numbers;
}

std::string_view StepArguments::Enumeration(std::size_t index) const {
  const StepValue& value = At(index);
  return value.kind == Kind::kEnumeration ? value.text : std::string_view();
}

std::string StepArguments::OptionalText(std::size_t index) const {
  if (index >= values_.size()) return {};
  const StepValue* value = &values_[index];
  if (value->kind == Kind::kTyped && value->items.size() == 1) value = &value->items[0];
  return value->kind == Kind::kText ? DecodeStepText(value->text) : std::string();
}

const StepRecord& StepArguments::Reference(std::size_t index) const {
  if (At(index).kind != Kind::kReference) Expected(index, "a reference");
  return file_->Get(values_[index].reference, *record_);
}

const StepRecord* StepArguments::OptionalReference(std::size_t index) const {
  if (index >= values_.size() || values_[index].kind != Kind::kReference) return nullptr;
  return &Reference(index);
}

std::vector<const StepRecord*> StepArguments::References(std::size_t index) const {
  std::vector<const StepRecord*> found;
  std::vector<const StepValue*> open{&At(index)};
  while (!open.empty()) {
    const StepValue* value = open.back();
    open.pop_back();
    if (value->kind == Kind::kReference) found.push_back(&file_->Get(value->reference, *record_));
    for (auto item = value->items.rbegin(); item != value->items.rend(); ++item) {
      open.push_back(&*item);
    }
  }
  return found;
}

}  // namespace wb
