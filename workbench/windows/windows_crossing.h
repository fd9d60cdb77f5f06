// One intercepted Windows call: counted, traced and open to faults like a crossing into the host.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/host/call.h"

namespace wb {

// A text that the caller may leave out.
inline std::string Utf8(const wchar_t* text) {
  return text == nullptr ? "" : FromWide(text);
}

// Of an address only that there is one, since it is another one in every run; numbers that some
// functions give as pointers stay.
template <typename Result>
int ResultForTrace(Result result) {
  if constexpr (std::is_pointer_v<Result>) {
    constexpr intptr_t kLargestNumber = 0xFFFF;
    const auto value = reinterpret_cast<intptr_t>(result);
    return value > kLargestNumber ? 1 : static_cast<int>(value);
  } else {
    return static_cast<int>(result);
  }
}

// Runs `body(call)` and gives its result. When a fault strikes or the body finds a misuse the
// result is `failure`, which is what the function itself gives when it fails. A call from another
// thread is a breach, but is answered.
template <typename Result, typename Body>
Result WindowsCrossing(const char* function, const std::string& arguments, Result failure,
                       Body&& body, bool is_of_run_log = false) {
  Host& host = TheHost();
  const bool on_ui_thread = host.OnUiThread();
  if (!on_ui_thread) {
    host.ReportBreach(function, "called from a thread that is not the user-interface thread");
  }
  const Call call(host, function, on_ui_thread ? host.trace.Enter(function) : 0);
  Result result = failure;
  const bool struck = on_ui_thread && host.faults.StrikeWindows(function, is_of_run_log) != nullptr;
  const bool user_acted = on_ui_thread && host.LetUserIn(function);
  try {
    if (!struck) result = body(call);
  } catch (...) {
    CaughtInCrossing(host, function, user_acted);
  }
  if (!on_ui_thread) return result;
  if (host.trace.keep_lines) {
    host.trace.Leave(call.call, function, arguments, ResultForTrace(result));
  } else {
    host.trace.LeaveQuietly();
  }
  return result;
}

// The same for a function that tells by Windows' last error why it failed: the error is kept as the
// function left it, whatever the host has done since. When a fault strikes it is `error`.
template <typename Result, typename Body>
Result ErrorCrossing(const char* function, const std::string& arguments, Result failure,
                     unsigned long error, Body&& body, bool is_of_run_log = false) {
  const auto keeping_error = [&](const Call&) {
    const Result answer = body();
    error = ::GetLastError();
    return answer;
  };
  const Result result = WindowsCrossing(function, arguments, failure, keeping_error, is_of_run_log);
  ::SetLastError(error);
  return result;
}

}  // namespace wb
