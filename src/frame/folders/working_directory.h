// The host's working directory, left for a while.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/window.h"

namespace qm {

// Remembers the working directory and changes back to it at the latest when it ends. Where the host
// does not tell the directory, none is entered, since there would be no way back.
class WorkingDirectory {
 public:
  WorkingDirectory();
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;
  ~WorkingDirectory() { Return(); }

  // A refused change leaves the directory as it is, with a line in the run log.
  ProError Enter(const std::wstring& folder);
  // Back to the remembered directory, if another one was entered. False when the host has not gone
  // back, which the user is told.
  bool Return();

  // Whether a folder is the remembered directory; true also when that is not known.
  bool MayBe(std::wstring_view folder) const;

 private:
  bool IsBack() const;

  ProPath remembered_ = {};
  bool is_known_ = false;
  bool is_away_ = false;
  bool is_lost_ = false;  // the host has not gone back
};

}  // namespace qm
