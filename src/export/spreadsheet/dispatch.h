// Late-bound calls to another program's objects: each object and each value has an owner, and a
// call that fails is an exception that says which step it was and why.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <exception>
#include <initializer_list>
#include <string>
#include <utility>

namespace qm {

// A member of an object by its fixed number; the name is for messages only.
struct Member {
  DISPID id;
  const wchar_t* name;
};

// A failed call.
class AutomationError : public std::exception {
 public:
  AutomationError(std::wstring step, HRESULT result, std::wstring description);

  const char* what() const noexcept override { return log_text_.c_str(); }
  // The member that was called, with the place where it was.
  const std::wstring& step() const { return step_; }
  void set_place(const std::wstring& place);
  // The server would not take the call, and was asked again for as long as the patience lasted.
  bool is_busy() const;
  // There is no server any more.
  bool is_gone() const;
  // What the other program says, or the system's text for the result, and the result's number.
  std::wstring Reason() const;

 private:
  std::wstring step_;
  HRESULT result_;
  std::wstring description_;
  std::string log_text_;
};

// Owner of a value that goes into a call or comes out of one.
class Variant {
 public:
  Variant() { ::VariantInit(&value_); }
  explicit Variant(bool value);
  explicit Variant(int value);
  explicit Variant(const std::wstring& text);
  Variant(Variant&& other) noexcept : Variant() { std::swap(value_, other.value_); }
  Variant& operator=(Variant&&) = delete;
  ~Variant() { ::VariantClear(&value_); }

  const VARIANT& get() const { return value_; }
  VARIANT* put() {
    ::VariantClear(&value_);
    return &value_;
  }

 private:
  VARIANT value_ = {};
};

// How long a busy server is asked again.
enum class Patience {
  kFull,   // 30 seconds
  kShort,  // 3 seconds: where it has been busy for long already
};

// Owner of one reference to an object.
class Dispatch {
 public:
  Dispatch() = default;
  explicit Dispatch(IDispatch* object) : object_(object) {}  // takes the reference over
  Dispatch(Dispatch&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Dispatch& operator=(Dispatch&& other) noexcept {
    if (this != &other) {
      reset();
      object_ = std::exchange(other.object_, nullptr);
    }
    return *this;
  }
  ~Dispatch() { reset(); }

  explicit operator bool() const { return object_ != nullptr; }
  void reset() {
    if (object_ != nullptr) std::exchange(object_, nullptr)->Release();
  }

  // A new object of the program, in a process of its own: a running one of the user's is never
  // attached to. Empty when the program cannot be started.
  static Dispatch Create(const wchar_t* program_id);

  // Each throws AutomationError.
  using Arguments = std::initializer_list<const Variant*>;
  Dispatch Get(const Member& member, Arguments arguments = {}) const;
  Variant GetValue(const Member& member) const;
  void Put(const Member& member, const Variant& value, Patience patience = Patience::kFull) const;
  void Call(const Member& member, Arguments arguments = {},
            Patience patience = Patience::kFull) const;
  Dispatch CallForObject(const Member& member, Arguments arguments = {}) const;

 private:
  Variant Invoke(const Member& member, WORD kind, Arguments arguments,
                 Patience patience = Patience::kFull) const;

  IDispatch* object_ = nullptr;
};

// COM for the lifetime of one call into another program.
class ComScope {
 public:
  ComScope() : initialized_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;
  ~ComScope() {
    if (initialized_) ::CoUninitialize();
  }

 private:
  // False where the host runs COM in another way, which then serves as well.
  bool initialized_;
};

}  // namespace qm
