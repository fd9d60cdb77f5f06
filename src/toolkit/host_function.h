// Declares each function of the host once, for three readers: the plug-in (looked up in the host
// process at its first call), the workbench (prototype of the exported function to implement) and
// a build against the vendor's own import library (plain prototype).
#pragma once

#include "toolkit/numbers.h"

// Suffix of the versioned name under which the host process offers its functions.
#define QM_HOST_NAME_SUFFIX "_C30"

// Functions of ours that the host calls let no exception out: the plug-in cannot pass one that does
// not say so. The host itself accepts any.
#ifndef QM_CALLBACK
#if defined(QM_HOST_SIDE)
#define QM_CALLBACK
#else
#define QM_CALLBACK noexcept
#endif
#endif

#if defined(QM_VENDOR_SDK)

#define PRO_FUNCTION(result, name, ...) extern "C" result name(__VA_ARGS__)

#elif defined(QM_HOST_SIDE)

#define PRO_FUNCTION(result, name, ...) \
  extern "C" __declspec(dllexport) result name(__VA_ARGS__) __asm__(#name QM_HOST_NAME_SUFFIX)

#elif defined(QM_LIST_FUNCTIONS)

// For declared_functions.cpp alone.
#define PRO_FUNCTION(result, name, ...)                                      \
  template <>                                                                \
  inline constexpr const char* kDeclaredName<__COUNTER__ - kBeforeFirst> = { \
      #name QM_HOST_NAME_SUFFIX}

#else

namespace qm {

// Address of `versioned_name` in the host process, or null. Defined in host_function.cpp.
void* FindHostFunction(const char* versioned_name);

// How many functions are declared in all, called yet or not. Defined in declared_functions.cpp, as
// is the next one.
int DeclaredFunctions();
// Whether the host offers any of them. Binds none.
bool IsAnyFunctionOffered();

// Receives the plain name of a host function that could not be found, once per function.
using MissingFunctionReporter = void (*)(const char* name);
inline constinit MissingFunctionReporter missing_function_reporter = nullptr;

// What a call answers when the host does not offer the function: every host function returns a
// status, and this is the general error.
inline constexpr int kMissingFunctionStatus = PRO_TK_GENERAL_ERROR;

// The look-up shared by all host functions, so that each signature adds only its call.
class HostEntry {
 public:
  constexpr HostEntry(const char* name, const char* versioned_name)
      : name_(name), versioned_name_(versioned_name) {}

  const char* name() const { return name_; }
  bool bound() const { return address_ != nullptr; }

  // All functions looked up so far, latest first, chained by next().
  static const HostEntry* first() { return first_; }
  const HostEntry* next() const { return next_; }

 protected:
  void* Address() {
    if (!looked_up_) LookUp();
    return address_;
  }

 private:
  void LookUp() {
    looked_up_ = true;
    next_ = first_;
    first_ = this;
    address_ = FindHostFunction(versioned_name_);
    if (address_ == nullptr && missing_function_reporter != nullptr) {
      missing_function_reporter(name_);
    }
  }

  const char* name_;
  const char* versioned_name_;
  void* address_ = nullptr;
  HostEntry* next_ = nullptr;
  bool looked_up_ = false;

  inline static constinit HostEntry* first_ = nullptr;
};

template <typename Signature>
class HostFunction;

template <typename Result, typename... Args>
class HostFunction<Result(Args...)> : public HostEntry {
 public:
  using HostEntry::HostEntry;
  Result operator()(Args... args) {
    void* const address = Address();
    if (address == nullptr) return static_cast<Result>(kMissingFunctionStatus);
    return reinterpret_cast<Result (*)(Args...)>(address)(args...);
  }
};

// Functions with a C variable argument list (message texts).
template <typename Result, typename... Args>
class HostFunction<Result(Args..., ...)> : public HostEntry {
 public:
  using HostEntry::HostEntry;
  template <typename... Extra>
  Result operator()(Args... args, Extra... extra) {
    void* const address = Address();
    if (address == nullptr) return static_cast<Result>(kMissingFunctionStatus);
    return reinterpret_cast<Result (*)(Args..., ...)>(address)(args..., extra...);
  }
};

}  // namespace qm

#define PRO_FUNCTION(result, name, ...)                           \
  inline constinit ::qm::HostFunction<result(__VA_ARGS__)> name { \
#name, #name QM_HOST_NAME_SUFFIX                              \
  }

#endif
