// One crossing into the host: count, thread check, ordered faults, argument checks, trace, and no
// exception back into the plug-in. Every exported function says what its arguments are and what it
// does with what they stand for:
//   ProError ProMdlTypeGet(ProMdl model, ProMdlType* type) {
//     return Crossing(__func__, ModelIn(model), Out(type, "type place"))
//         .Run([](const Model& from, ProMdlType& place) { ... });
//   }
// The arguments are looked up before the body runs (arguments.h has their kinds); a body that gives
// no status has succeeded. One that wants more of the host takes a `const Call&` first.
#pragma once

#include <chrono>
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

// Thrown where the host answers a failing status by a habit of its own: no breach.
struct RefusedByHabit {
  ProError status;
};

std::string DescribeArgument(const char* text);
std::string DescribeArgument(const wchar_t* text);
std::string DescribeArgument(int number);
std::string DescribeArgument(double number);
std::string DescribeArgument(const void* pointer);
std::string DescribeArgument(const ProModelitem* item);
template <typename T>
requires std::is_enum_v<T> std::string DescribeArgument(T number) {
  return DescribeArgument(static_cast<int>(number));
}
template <typename R, typename... A>
std::string DescribeArgument(R (*)(A...)) {
  return "callback";
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
  // What a handle stands for, or is inside of; a misuse when it is no such handle.
  HandleTable::Found Look(const void* handle, HandleKind kind) const;
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

// An argument that the body gets as it is: numbers, flags, pointers to the plug-in's own data.
template <typename T>
struct AsItIs {
  T value;
  std::string Describe() const { return DescribeArgument(value); }
  T Look(const Call&) const { return value; }
};

template <typename T>
auto AsArgument(const T& argument) {
  if constexpr (requires(const Call& call) { argument.Look(call); }) {
    return argument;
  } else {
    return AsItIs<T>{argument};
  }
}

class CrossingBase {
 protected:
  // Does what every crossing starts with; false when a fault or a breach has decided `status`.
  bool Begin();
  void EndQuietly() { host_.trace.LeaveQuietly(); }
  // Names the exception in flight.
  ProError Caught() const;

  explicit CrossingBase(const char* function);
  ~CrossingBase();

  Host& host_;
  const char* function_;
  long call_ = 0;
  const FaultPlan* fault_ = nullptr;
  bool is_clocked_ = false;
  std::chrono::steady_clock::time_point since_;
  bool user_acted_ = false;  // between the plug-in's call and its being carried out
};

template <typename... Arguments>
class Crossing : CrossingBase {
 public:
  template <typename... Given>
  explicit Crossing(const char* function, const Given&... given)
      : CrossingBase(function), arguments_(AsArgument(given)...) {}

  template <typename Body>
  ProError Run(Body&& body) {
    const ProError status = Begin() ? GuardedRun(body) : Struck();
    if (host_.trace.keep_lines) {
      host_.trace.Leave(call_, function_, Describe(), status);
    } else {
      EndQuietly();
    }
    return status;
  }

 private:
  template <typename Body>
  ProError GuardedRun(Body& body) {
    const Call call(host_, function_, call_);
    try {
      return std::apply(
          [&](const Arguments&... argument) {
            // In braces: looked up in their order.
            std::tuple<decltype(argument.Look(call))...> looked{argument.Look(call)...};
            return Invoke(body, call, looked);
          },
          arguments_);
    } catch (...) {
      return Caught();
    }
  }
  template <typename Body, typename Looked>
  static ProError Invoke(Body& body, const Call& call, Looked& looked) {
    const auto run = [&](auto&... values) {
      if constexpr (std::is_invocable_v<Body&, const Call&, decltype(values)...>) {
        return body(call, values...);
      } else {
        return body(values...);
      }
    };
    if constexpr (std::is_void_v<decltype(std::apply(run, looked))>) {
      std::apply(run, looked);
      return PRO_TK_NO_ERROR;
    } else {
      return std::apply(run, looked);
    }
  }
  // What a fault makes of the call: an argument that is given back is not held against the plug-in,
  // and places are emptied by a success that gives nothing.
  ProError Struck() {
    if (fault_ == nullptr) return PRO_TK_GENERAL_ERROR;
    const auto each = [this](const auto& argument) {
      if constexpr (requires { argument.Forgive(host_); }) argument.Forgive(host_);
      if constexpr (requires { argument.Empty(); }) {
        if (fault_->kind == FaultKind::kEmptySuccess) argument.Empty();
      }
      if constexpr (requires { argument.kGivesText; }) {
        if (argument.kGivesText) host_.faults.NoteText();
      }
    };
    std::apply([&](const Arguments&... argument) { (each(argument), ...); }, arguments_);
    const bool claims_success = fault_->kind == FaultKind::kEmptySuccess;
    return claims_success ? PRO_TK_NO_ERROR : static_cast<ProError>(fault_->status);
  }
  std::string Describe() const {
    std::vector<std::string> texts;
    std::apply([&](const Arguments&... argument) { (texts.push_back(argument.Describe()), ...); },
               arguments_);
    return Join(", ", texts);
  }

  std::tuple<Arguments...> arguments_;
};

template <typename... Given>
Crossing(const char*, const Given&...)
    -> Crossing<decltype(AsArgument(std::declval<const Given&>()))...>;

// Turns the exception in flight into a recorded breach and a failing status. What the call was
// given may have been right until the user acted: then it only fails.
ProError CaughtInCrossing(Host& host, const char* function, bool user_acted = false);

}  // namespace wb
