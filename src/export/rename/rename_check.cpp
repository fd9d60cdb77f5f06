// Judges rows with the host's help.
#include "export/rename/rename_check.h"

#include "frame/models/host_name.h"
#include "toolkit/model.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// In session or in the working directory. Not logged: that it is not there is the rule.
bool IsThere(const std::wstring& name, ProMdlType type) {
  auto host_name = RetrievalName::From(name);
  ProMdl model = nullptr;
  return host_name && Ok(ProMdlRetrieve(host_name->name, type, &model));
}

std::optional<std::wstring> RefusalOf(const RenameRow& row, AskedNames& asked, NameTrial& trial) {
  switch (Judge(row)) {
    case NewName::kUnchanged:
      return std::nullopt;
    case NewName::kTooLong:
      return TooLongRefusal(row.new_name);
    case NewName::kIllegal:
      return IllegalRefusal(row.new_name);
    case NewName::kToBeTried:
      break;
  }
  const bool is_taken = !asked.Add(row) || IsThere(row.new_name, TypeOf(row.type)) ||
                        trial.HasFiles(row.new_name, row.type);
  if (is_taken) return TakenRefusal(row.new_name);
  if (!trial.IsLegal(row.new_name)) return IllegalRefusal(row.new_name);
  return std::nullopt;
}

}  // namespace

std::optional<std::wstring> RefusalOf(const std::vector<RenameRow>& rows, LegalNames& legal) {
  NameTrial trial(legal);
  AskedNames asked;
  for (const RenameRow& row : rows) {
    if (auto refusal = RefusalOf(row, asked, trial)) return refusal;
  }
  return std::nullopt;
}

}  // namespace qm
