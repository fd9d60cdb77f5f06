// The run log: a plain UTF-8 file "Quillmax\quillmax.log" in the user's local application data
// folder. At 1 MB it becomes "quillmax.old.log" and a new one begins. Logging shows no box, fails
// no command and lets no exception out; lines of a text that is there already need no memory.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "frame/text/fixed_line.h"
#include "toolkit/types.h"

namespace qm {

// Where the run log lies, made when it is missing, without separator; empty when there is none.
std::wstring RunLogFolder();

// One line with date and time. Lines logged while a command runs are kept back and written with
// the command's own line, or in larger lots, so that a batch does not open the file each time.
void LogEvent(std::string_view text) noexcept;

// A per-model failure that a command passes over. Counted in the command's line; beyond the first
// 1,000 of a command only counted. The model's name is asked of the host, or given by who has it.
void LogFailure(ProMdl model, const char* function, ProError status) noexcept;
// The same in a sentence of its own.
void LogFailure(std::string_view text) noexcept;
void LogFailure(std::wstring_view model_name, const char* function, ProError status) noexcept;

// A component that a command leaves out since the host does not tell what it is. Counted as a
// failure like the others.
void LogLeftOut(const ProFeature& component, const char* function, ProError status) noexcept;

// What came of the running command, for its line: where it ends without doing its work. `what` is a
// static text. Boxes tell it themselves, by their text.
void LogOutcome(const char* what) noexcept;
void LogBox(const wchar_t* text) noexcept;

// A count for the running command's line, for example ("models", 40). Nothing when none runs.
void LogCount(const char* what, long long count) noexcept;
// The same for what the command could not work on.
void LogLeftOutCount(long long count) noexcept;

// A running command, or one press of a button in its dialog: its end writes one line with name,
// status, duration, counts, the number of failures passed over, and what came of it. The innermost
// one receives what is logged meanwhile.
class CommandLog {
 public:
  explicit CommandLog(const char* name) noexcept;
  CommandLog(const CommandLog&) = delete;
  CommandLog& operator=(const CommandLog&) = delete;
  ~CommandLog();

  // Status for the closing line.
  void set_status(ProError status) { status_ = status; }

 private:
  friend void LogEvent(std::string_view) noexcept;
  friend bool CountFailure() noexcept;
  friend void LogCount(const char*, long long) noexcept;
  friend void LogLeftOutCount(long long) noexcept;
  friend void LogOutcome(const char*) noexcept;
  friend void LogBox(const wchar_t*) noexcept;

  void AddClosingLine() const;
  void AddOutcome(FixedLine<1024>* line) const;

  const char* name_;
  CommandLog* outer_;
  std::chrono::steady_clock::time_point start_;
  ProError status_ = PRO_TK_NO_ERROR;
  long long failures_ = 0;
  long long left_out_ = 0;
  bool stopped_ = false;  // by an exception
  const char* outcome_ = nullptr;
  wchar_t box_[96] = {};  // the beginning of the last box's text
  FixedLine<256> counts_;
};

}  // namespace qm
