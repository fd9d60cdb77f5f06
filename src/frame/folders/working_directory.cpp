// Leaves the working directory and comes back.
#include "frame/folders/working_directory.h"

#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"
#include "frame/text/directory_rules.h"
#include "frame/text/fixed_text.h"
#include "frame/text/text.h"
#include "toolkit/status.h"

namespace qm {

WorkingDirectory::WorkingDirectory() {
  is_known_ = Ok(ProDirectoryCurrentGet(remembered_)) && !FixedText(remembered_).empty();
  if (!is_known_) LogEvent("the working directory is not known: none other is entered");
}

ProError WorkingDirectory::Enter(const std::wstring& folder) {
  ProPath path = {};
  if (!is_known_ || !FillFixedText(folder, path)) return PRO_TK_INVALID_DIR;
  const ProError status = ProDirectoryChange(path);
  if (Ok(status)) {
    is_away_ = true;
  } else {
    LogEvent("ProDirectoryChange to " + ToUtf8(folder) + " answered " + StatusName(status));
  }
  return status;
}

// An answer that says nothing is no reason to doubt the change.
bool WorkingDirectory::IsBack() const {
  ProPath current = {};
  return !Ok(ProDirectoryCurrentGet(current)) || FixedText(current) == FixedText(remembered_);
}

bool WorkingDirectory::MayBe(std::wstring_view folder) const {
  return !is_known_ || IsSameFolder(folder, FixedText(remembered_));
}

bool WorkingDirectory::Return() {
  if (!is_away_) return !is_lost_;
  is_away_ = false;
  // Twice, since all that the user does next would happen in the wrong folder.
  ProError status = ProDirectoryChange(remembered_);
  if (Ok(status) && IsBack()) return true;
  status = ProDirectoryChange(remembered_);
  if (Ok(status) && IsBack()) return true;
  LogFailure("ProDirectoryChange back to " + ToUtf8(FixedText(remembered_)) + " answered " +
             StatusName(status));
  DisplayNote("The working directory could not be changed back to %0w", remembered_);
  is_lost_ = true;
  return false;
}

}  // namespace qm
