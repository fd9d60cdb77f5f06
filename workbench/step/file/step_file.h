// A STEP exchange file (ISO 10303-21) opened for reading: its schema and its entity instances,
// found by number. Instances stay text until somebody asks for their values, so a file of
// hundreds of megabytes costs little more than its own size.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/step/file/step_lexer.h"

namespace wb {

// "#12 = NAME(...)", or "#12 = (A(...) B(...))" when an instance is of several types at once.
struct StepRecord {
  std::uint64_t id;
  std::uint64_t offset;  // in the file's text, where the name or the bracket stands
  std::uint32_t type;    // index into StepFile::types()
};

// The entity names of an instance in capitals; one name unless it is of several types at once.
struct StepType {
  std::vector<std::string> names;
  bool Has(std::string_view name) const;
};

struct StepValue {
  enum class Kind : std::uint8_t {
    kOmitted,
    kDerived,
    kNumber,
    kText,
    kEnumeration,
    kBinary,
    kReference,
    kUri,
    kList,
    kTyped,  // LENGTH_MEASURE(2.5): `text` is the name, `items` the values
  };
  Kind kind = Kind::kOmitted;
  double number = 0;
  std::uint64_t reference = 0;
  std::string_view text;  // still encoded; valid as long as the file
  std::vector<StepValue> items;
};

class StepFile;

// The values of one instance, by position. Every reader says what it wants; a value of another
// kind ends the import with the instance's line. A position behind the last value is an error
// too, except for the readers named Optional....
class StepArguments {
 public:
  StepArguments(const StepFile& file, const StepRecord& record, std::vector<StepValue> values)
      : file_(&file), record_(&record), values_(std::move(values)) {}

  std::size_t size() const { return values_.size(); }
  const StepValue& At(std::size_t index) const;
  double Number(std::size_t index) const;
  std::vector<double> Numbers(std::size_t index) const;
  std::string_view Enumeration(std::size_t index) const;  // empty when omitted
  bool Boolean(std::size_t index) const { return Enumeration(index) != "F"; }
  std::string OptionalText(std::size_t index) const;  // UTF-8; empty unless there is a text
  const StepRecord& Reference(std::size_t index) const;
  const StepRecord* OptionalReference(std::size_t index) const;  // null for $, *, missing
  // The instances that a list names, also through inner lists; the order is the file's.
  std::vector<const StepRecord*> References(std::size_t index) const;

 private:
  [[noreturn]] void Expected(std::size_t index, std::string_view what) const;

  const StepFile* file_;
  const StepRecord* record_;
  std::vector<StepValue> values_;
};

class StepFile {
 public:
  // Both read the whole exchange structure and throw StepError unless it is complete and well
  // formed: from ISO-10303-21; to END-ISO-10303-21; with every instance number given once.
  static StepFile Read(const std::filesystem::path& path);
  static StepFile Parse(std::string text, std::string file_name);

  const std::string& schema() const { return schema_; }             // the first of FILE_SCHEMA
  const std::string& file_name() const { return source_->file; }    // as errors name it
  std::span<const StepRecord> records() const { return records_; }  // by rising number
  std::span<const StepType> types() const { return types_; }
  const StepType& TypeOf(const StepRecord& record) const { return types_[record.type]; }
  std::string TypeName(const StepRecord& record) const;  // for messages

  const StepRecord* Find(std::uint64_t id) const;  // null when the file has no such instance
  // The instance that `from` names; an error at `from` when it is missing.
  const StepRecord& Get(std::uint64_t id, const StepRecord& from) const;
  // Where an instance lies when the REFERENCE section says it is in another file; else empty.
  std::string_view ExternalUri(std::uint64_t id) const;

  // All values of an instance. For an instance of several types: those of its type `entity`,
  // without the inherited ones; `inherited` says how many of them a plain instance carries in
  // front, and they are left out, so that positions mean the same in both ways of writing.
  StepArguments Arguments(const StepRecord& record, std::string_view entity = {},
                          std::size_t inherited = 0) const;
  // Every instance number that the values of `record` name, in order.
  std::vector<std::uint64_t> References(const StepRecord& record) const;

  std::size_t LineOf(const StepRecord& record) const { return source_->LineOf(record.offset); }
  [[noreturn]] void Fail(const StepRecord& record, std::string reason) const;

 private:
  friend class StepIndexer;
  struct External {
    std::uint64_t id;
    std::string_view uri;
  };

  StepFile() = default;

  std::unique_ptr<StepSource> source_;  // stays where it is when the file moves
  std::string schema_;
  std::vector<StepType> types_;
  std::vector<StepRecord> records_;
  std::vector<External> externals_;
};

}  // namespace wb
