// Where an import keeps its files until all of them are written, so that one that ends before,
// even by force, leaves the user's folders as they were.
#pragma once

#include <filesystem>
#include <optional>

#include "workbench/base/process.h"

namespace wb {

// Takes back what imports into `target` that no longer run have left, if there is anything.
void UndoDeadImports(const std::filesystem::path& target);

// A folder ".import-PROCESS" in the target, or in the nearest folder above that is there. Throws
// what the file system says.
class ImportStaging {
 public:
  explicit ImportStaging(const std::filesystem::path& target);
  ImportStaging(const ImportStaging&) = delete;
  ImportStaging& operator=(const ImportStaging&) = delete;

  const std::filesystem::path& folder() const { return folder_; }  // takes the files
  // Puts them into the target. None of their names may be taken there.
  void Deliver() const;

 private:
  std::filesystem::path base_;     // is there
  std::filesystem::path missing_;  // the target as seen from there; empty: the target is there
  std::filesystem::path top_;
  std::filesystem::path folder_;
  std::optional<Watch> watch_;
};

}  // namespace wb
