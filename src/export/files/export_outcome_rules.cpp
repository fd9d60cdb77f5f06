// Stamps into outcomes.
#include "export/files/export_outcome_rules.h"

#include <unordered_map>

#include "frame/text/letter_case.h"

namespace qm {

FileOutcome OutcomeOf(const FileWriting& writing) {
  if (!writing.after) return FileOutcome::kMissing;
  if (writing.after == writing.before) return FileOutcome::kOld;
  return writing.after->size == 0 ? FileOutcome::kEmpty : FileOutcome::kWritten;
}

void MarkWrittenOver(const std::vector<ExpectedFile*>& files) {
  std::unordered_map<std::wstring, const ExpectedFile*> later;
  for (size_t i = files.size(); i > 0; --i) {
    ExpectedFile& file = *files[i - 1];
    const bool has_changed =
        file.outcome == FileOutcome::kWritten || file.outcome == FileOutcome::kEmpty;
    if (!has_changed) continue;
    const auto [found, is_last] = later.emplace(LowerCased(file.path), &file);
    if (is_last || file.outcome == FileOutcome::kEmpty) continue;
    const ExpectedFile& over = *found->second;
    const bool is_same =
        !file.model.empty() && file.model == over.model && over.outcome != FileOutcome::kEmpty;
    file.outcome = is_same ? FileOutcome::kWrittenAgain : FileOutcome::kWrittenOver;
  }
}

FileOutcome OutcomeAtEnd(FileOutcome outcome, const std::optional<FileStamp>& stamp) {
  if (!IsThere(outcome)) return outcome;
  if (!stamp) return FileOutcome::kMissing;
  return stamp->size == 0 ? FileOutcome::kEmpty : outcome;
}

bool IsThere(FileOutcome outcome) {
  return outcome == FileOutcome::kWritten || outcome == FileOutcome::kWrittenAgain;
}

const char* OutcomeText(FileOutcome outcome) {
  switch (outcome) {
    case FileOutcome::kWritten:
      return "written";
    case FileOutcome::kWrittenAgain:
      return "written, and later again of the same model";
    case FileOutcome::kWrittenOver:
      return "written over by a later one of the same name";
    case FileOutcome::kEmpty:
      return "empty";
    case FileOutcome::kMissing:
      return "missing";
    case FileOutcome::kOld:
      return "missing, an older file of this name is there";
  }
  return "";
}

}  // namespace qm
