// What a batch of renamings was to do and how far it came, in a text file beside the run log. Half
// a batch is the worst that can happen to a product: after a crash this tells which models have
// their new names.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "export/rename/rename_rules.h"

namespace qm {

class RenameJournal {
 public:
  // Nothing is written.
  RenameJournal() = default;
  RenameJournal(const RenameJournal&) = delete;
  RenameJournal& operator=(const RenameJournal&) = delete;
  ~RenameJournal();

  // Writes the table behind what earlier batches have left: the rows, each with the folder that its
  // model lies in. False, after a line in the run log, when there is no file to be had.
  bool Begin(const std::vector<RenameRow>& rows, const std::vector<std::wstring>& folders);
  const std::wstring& path() const { return path_; }
  // Whether there is one, and every line so far is in it.
  bool is_whole() const { return file_ != INVALID_HANDLE_VALUE && !has_failed_; }

  // A step of a row that has just been done, or was refused: written before the next call of the
  // host, and without memory, so that no step goes unmarked.
  void Mark(const RenameRow& row, const char* what, ProError status) noexcept;
  void End(long long renamed, long long left);

 private:
  void Write(std::string_view text) noexcept;

  std::wstring path_;
  HANDLE file_ = INVALID_HANDLE_VALUE;
  bool has_failed_ = false;
};

}  // namespace qm
