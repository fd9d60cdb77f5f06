// One crossing into the host: count, thread check, ordered faults, argument checks, trace, and no
// exception back into the plug-in. Every exported function is written as
//   return Crossing("ProMdlNameGet", model, Out(name)).Run([&](Call& call) { ... });
#pragma once

#include <cstring>
#include <tuple>
#include <type_traits>

#include "workbench/base/text.h"
#include "workbench/host/host.h"
#include "workbench/host/host_types.h"

namespace wb {

// Thrown by argument checks; the crossing turns it into a recorded breach.
struct Misuse {
  std::string why;
  bool stale = false;  // of a handle that was good once
};
// Thrown where the workbench does not know what the real host would do.
struct NotModelled {
  std::string what;
};

// Marks an argument that the call fills in, so that an empty success can empty it.
template <typename T>
struct OutArgument {
  T* place;
  size_t count;
};
template <typename T>
OutArgument<T> Out(T* place) {
  return {place, 1};
}
// A text buffer of `count` characters.
inline OutArgument<wchar_t> OutText(wchar_t* place, size_t count) {
  return {place, count};
}

std::string DescribeArgument(const char* text);
std::string DescribeArgument(const wchar_t* text);
std::string DescribeArgument(int number);
std::string DescribeArgument(const void* pointer);
std::string DescribeArgument(const ProModelitem* item);
template <typename T>
requires std::is_enum_v<T> std::string DescribeArgument(T number) {
  return DescribeArgument(static_cast<int>(number));
}
template <typename T>
std::string DescribeArgument(const OutArgument<T>& out) {
  if (out.place == nullptr) return "null";
  if constexpr (std::is_same_v<T, wchar_t>) return "-> " + DescribeArgument(out.place);
  if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
    return "-> " + DescribeArgument(static_cast<int>(*out.place));
  } else if constexpr (std::is_pointer_v<T>) {
    return "-> " + DescribeArgument(static_cast<const void*>(*out.place));
  } else {
    return "->";
  }
}
template <typename R, typename... A>
std::string DescribeArgument(R (*)(A...)) {
  return "callback";
}

template <typename T>
void EmptyArgument(const T&) {}
template <typename T>
void EmptyArgument(const OutArgument<T>& out) {
  if (out.place != nullptr) std::memset(static_cast<void*>(out.place), 0, sizeof(T));
}

// The checks an exported function makes of its arguments.
class Call {
 public:
  Call(Host& host_of_call, const char* name, long number)
      : host(host_of_call), function(name), call(number) {}

  [[noreturn]] void Fail(const std::string& why) const { throw Misuse{why}; }
  [[noreturn]] void Fail(const HandleTable::Found& found) const {
    throw Misuse{found.why, found.stale};
  }

  template <typename T>
  T& Place(T* pointer, const char* what) const {
    if (pointer == nullptr) Fail(std::string("null ") + what);
    return *pointer;
  }
  Model& ModelAt(const void* handle) const;
  // A part or assembly.
  Model& SolidAt(const void* handle) const;
  PickedItem& SelectionAt(const void* handle) const;
  // For visits: the user may have erased the model since the last look.
  void CheckStillThere(const void* handle) const;
  // A component or other feature of a solid.
  Feature& FeatureAt(const ProModelitem* item, Model** owner = nullptr) const;

  // Texts up to `limit` characters with the closing zero.
  std::string Text(const wchar_t* text, size_t limit, const char* what) const;
  std::string Narrow(const char* text, size_t limit, const char* what) const;
  std::string ModelNameText(const wchar_t* text) const;
  std::filesystem::path Path(const wchar_t* text, const char* what) const;
  void CopyText(wchar_t* place, size_t limit, const std::string& text) const;

  void Give(const void* what, Resource resource) const {
    host.accounts.Give(what, resource, function, call);
  }
  void TakeBack(const void* what, Resource resource) const;

  Host& host;
  const char* function;
  long call;
};

// Longest narrow text taken (component paths and names); longer ones are a misuse.
inline constexpr size_t kNarrowLimit = 256;

// For functions that release something: what a failed call keeps out of the accounts.
void ForgiveArguments(const char* function, const void* first);

class CrossingBase {
 protected:
  // Does what every crossing starts with; false when a fault or a breach has decided `status`.
  bool Begin();
  void EndQuietly() { host_.trace.LeaveQuietly(); }

  explicit CrossingBase(const char* function) : host_(TheHost()), function_(function) {}
  ~CrossingBase() = default;

  Host& host_;
  const char* function_;
  long call_ = 0;
  const FaultPlan* fault_ = nullptr;
  bool user_acted_ = false;  // between the plug-in's call and its being carried out
};

template <typename... Args>
class Crossing : CrossingBase {
 public:
  explicit Crossing(const char* function, Args... args) : CrossingBase(function), args_(args...) {}

  template <typename Body>
  ProError Run(Body&& body) {
    const bool runs = Begin();
    const ProError status = runs ? GuardedRun(body) : Refused();
    if (!host_.trace.keep_lines) {
      EndQuietly();
    } else {
      host_.trace.Leave(call_, function_, Describe(), status);
    }
    return status;
  }

 private:
  template <typename Body>
  ProError GuardedRun(Body& body) {
    Call call(host_, function_, call_);
    try {
      return body(call);
    } catch (...) {
      return Caught();
    }
  }
  // Names the exception in flight; defined beside Begin.
  ProError Caught();
  ProError Refused() {
    if (fault_ == nullptr) return PRO_TK_GENERAL_ERROR;
    if constexpr (sizeof...(Args) > 0) ForgiveFirst(std::get<0>(args_));
    if (fault_->kind != FaultKind::kEmptySuccess) return static_cast<ProError>(fault_->status);
    std::apply([](const auto&... arg) { (EmptyArgument(arg), ...); }, args_);
    return PRO_TK_NO_ERROR;
  }
  template <typename T>
  void ForgiveFirst(const T& first) {
    if constexpr (std::is_pointer_v<T> && !std::is_function_v<std::remove_pointer_t<T>>) {
      ForgiveArguments(function_, first);
    }
  }
  std::string Describe() const {
    std::vector<std::string> texts;
    std::apply([&](const auto&... arg) { (texts.push_back(DescribeArgument(arg)), ...); }, args_);
    return Join(", ", texts);
  }

  std::tuple<Args...> args_;
};

// Turns the exception in flight into a recorded breach and a failing status. What the call was
// given may have been right until the user acted: then it only fails.
ProError CaughtInCrossing(Host& host, const char* function, bool user_acted = false);

template <typename... Args>
ProError Crossing<Args...>::Caught() {
  return CaughtInCrossing(host_, function_, user_acted_);
}

}  // namespace wb
