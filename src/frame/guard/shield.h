// The shield around every function pointer that the host or Windows gets from the plug-in: no
// exception leaves it. Pass `Shielded<&Function>::Call` instead of `&Function`; commands and dialog
// actions have their own forms, which also tell the user.
#pragma once

#include <type_traits>

#include "toolkit/command.h"
#include "toolkit/types.h"

namespace qm {

// Must be called inside a catch block: logs the exception in flight under `where`.
void LogException(const char* where) noexcept;
// The same, and tells the user in a caption box that the command was stopped.
void ReportException(const char* where) noexcept;

// What a shielded function answers after an exception.
template <typename Result>
constexpr Result FailureAnswer() {
  if constexpr (std::is_same_v<Result, ProError>) {
    return PRO_TK_GENERAL_ERROR;
  } else if constexpr (std::is_same_v<Result, uiCmdAccessState>) {
    return ACCESS_UNAVAILABLE;
  } else {
    static_assert(std::is_void_v<Result>, "say what this kind of function answers on failure");
  }
}

// For access rules, notifications, visit actions and filters, timers: silent but for the run log.
template <auto Function>
struct Shielded;

template <typename Result, typename... Args, Result (*Function)(Args...)>
struct Shielded<Function> {
  static Result Call(Args... args) noexcept {
    try {
      return Function(args...);
    } catch (...) {
      LogException("a function called by the host");
    }
    return FailureAnswer<Result>();
  }
};

// Runs one command under the busy flag, with its line in the run log.
int RunCommand(const char* name, ProError (*action)()) noexcept;

}  // namespace qm
