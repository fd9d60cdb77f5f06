// Reads a STEP exchange file once from front to back: checks its grammar and notes where each
// instance stands.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "workbench/step/file/step_file.h"

namespace wb {

class StepIndexer {
 public:
  explicit StepIndexer(StepFile& file) : file_(file), lexer_(*file.source_) {}

  // Fills the file's records, types, schema and external references. Throws StepError.
  void Run();

 private:
  void CheckOpening();
  void ReadHeader();
  void ReadData();
  void ReadExternals();
  void ReadInstance(const StepWord& reference);
  void ReadValues();
  bool IsSectionEnd(const StepWord& word);
  void AddRecord(std::uint64_t id, std::size_t offset);
  void SortRecords();
  StepWord Expect(StepToken token, std::string_view what);

  StepFile& file_;
  StepLexer lexer_;
  std::string type_name_;  // of the instance being read; names joined by blanks
  std::map<std::string, std::uint32_t, std::less<>> type_numbers_;
};

// The number behind '#'; an error when it does not fit.
std::uint64_t ReadStepId(const StepSource& source, const StepWord& word);

}  // namespace wb
