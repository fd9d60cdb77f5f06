// Late-bound calls, and the waiting for a busy server.
#include "export/spreadsheet/dispatch.h"

#include <objbase.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "frame/text/text.h"

namespace qm {
namespace {

// Method arguments and texts are read as in this locale, whatever the user's: a spreadsheet program
// in one language on a system in another refuses calls in the system's.
constexpr LCID kCallLocale = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

// More than any member that is used takes.
constexpr std::size_t kMostArguments = 8;

// The program is in the middle of something of its user's, such as the typing of a cell.
constexpr auto kInterrupted = static_cast<HRESULT>(0x800AC472);

bool IsBusy(HRESULT result) {
  return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER ||
         result == kInterrupted;
}

constexpr HRESULT kGoneResults[] = {
    RPC_E_SERVERFAULT, RPC_E_DISCONNECTED,
    static_cast<HRESULT>(0x800706BA),  // RPC_S_SERVER_UNAVAILABLE
};

bool IsGone(HRESULT result) {
  return std::ranges::find(kGoneResults, result) != std::end(kGoneResults);
}

// The system's own text, where it has any, is rarely of help to users.
std::wstring ResultText(HRESULT result) {
  if (IsBusy(result)) return L"程序正忙，没有应答";
  if (IsGone(result)) return L"程序已意外退出";
  wchar_t text[512] = {};
  DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                  nullptr, static_cast<DWORD>(result), 0, text,
                                  static_cast<DWORD>(std::size(text)), nullptr);
  while (length > 0 && text[length - 1] <= L' ') --length;
  return {text, length};
}

// Waits between the attempts of one call, each time twice as long, until the patience is over.
class BusyWait {
 public:
  explicit BusyWait(Patience patience)
      : limit_(patience == Patience::kFull ? kFullLimitMs : kShortLimitMs) {}

  // False when the result is not that of a busy server, or it has been busy for too long.
  bool WaitAfter(HRESULT result) {
    if (!IsBusy(result)) return false;
    const ULONGLONG now = ::GetTickCount64();
    if (start_ == 0) start_ = now;
    const ULONGLONG waited = now - start_;
    if (waited >= limit_) return false;
    ::Sleep(static_cast<DWORD>(std::min<ULONGLONG>(wait_, limit_ - waited)));
    wait_ = std::min(wait_ * 2, kLongestWaitMs);
    return true;
  }

 private:
  static constexpr ULONGLONG kFullLimitMs = 30'000;
  static constexpr ULONGLONG kShortLimitMs = 3'000;
  static constexpr ULONGLONG kLongestWaitMs = 4'000;
  const ULONGLONG limit_;
  ULONGLONG start_ = 0;
  ULONGLONG wait_ = 20;
};

// What the other program tells of a failure.
class ExceptionInfo {
 public:
  ExceptionInfo() = default;
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;
  ~ExceptionInfo() { Clear(); }

  EXCEPINFO* put() {
    Clear();
    return &info_;
  }
  std::wstring Description() {
    if (info_.pfnDeferredFillIn != nullptr) info_.pfnDeferredFillIn(&info_);
    if (info_.bstrDescription == nullptr) return {};
    return {info_.bstrDescription, ::SysStringLen(info_.bstrDescription)};
  }
  HRESULT Result(HRESULT call_result) const {
    return call_result == DISP_E_EXCEPTION && FAILED(info_.scode) ? info_.scode : call_result;
  }

 private:
  void Clear() {
    ::SysFreeString(info_.bstrSource);
    ::SysFreeString(info_.bstrDescription);
    ::SysFreeString(info_.bstrHelpFile);
    info_ = {};
  }
  EXCEPINFO info_ = {};
};

// Reference to the object in `value`. An answer without one counts as a failure.
Dispatch ObjectIn(const Member& member, const Variant& value) {
  const VARIANT& answer = value.get();
  if (answer.vt != VT_DISPATCH || answer.pdispVal == nullptr) {
    throw AutomationError(member.name, E_NOINTERFACE, L"没有返回对象");
  }
  answer.pdispVal->AddRef();
  return Dispatch(answer.pdispVal);
}

}  // namespace

AutomationError::AutomationError(std::wstring step, HRESULT result, std::wstring description)
    : step_(std::move(step)),
      result_(result),
      description_(std::move(description)),
      log_text_(ToUtf8(step_ + L": " + Reason())) {}

void AutomationError::set_place(const std::wstring& place) {
  step_ += L" (" + place + L")";
  log_text_ = ToUtf8(step_ + L": " + Reason());
}

bool AutomationError::is_busy() const {
  return IsBusy(result_);
}

bool AutomationError::is_gone() const {
  return IsGone(result_);
}

std::wstring AutomationError::Reason() const {
  wchar_t number[16];
  std::swprintf(number, std::size(number), L"(0x%08X)", static_cast<unsigned>(result_));
  const std::wstring text = description_.empty() ? ResultText(result_) : description_;
  return text.empty() ? number : text + L" " + number;
}

Variant::Variant(bool value) : Variant() {
  value_.vt = VT_BOOL;
  value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(int value) : Variant() {
  value_.vt = VT_I4;
  value_.lVal = value;
}

Variant::Variant(const std::wstring& text) : Variant() {
  value_.vt = VT_BSTR;
  value_.bstrVal = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (value_.bstrVal == nullptr) throw std::bad_alloc();
}

Dispatch Dispatch::Create(const wchar_t* program_id) {
  CLSID class_id;
  if (FAILED(::CLSIDFromProgID(program_id, &class_id))) return {};
  BusyWait busy(Patience::kFull);
  for (;;) {
    void* object = nullptr;
    const HRESULT result = ::CoCreateInstance(
        class_id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, &object);
    if (SUCCEEDED(result)) return Dispatch(static_cast<IDispatch*>(object));
    if (!busy.WaitAfter(result)) return {};
  }
}

Variant Dispatch::Invoke(const Member& member, WORD kind, Arguments arguments,
                         Patience patience) const {
  if (object_ == nullptr) throw AutomationError(member.name, E_POINTER, {});
  if (arguments.size() > kMostArguments) throw AutomationError(member.name, E_INVALIDARG, {});
  // The call wants the last argument first. The values stay ours. Without an allocation: the way
  // out after one that failed leads through here.
  VARIANTARG reversed[kMostArguments] = {};
  std::transform(std::rbegin(arguments), std::rend(arguments), reversed,
                 [](const Variant* argument) { return argument->get(); });
  DISPID named = DISPID_PROPERTYPUT;
  const bool puts = kind == DISPATCH_PROPERTYPUT;
  DISPPARAMS parameters = {reversed, puts ? &named : nullptr, static_cast<UINT>(arguments.size()),
                           puts ? 1u : 0u};
  BusyWait busy(patience);
  ExceptionInfo exception;
  for (;;) {
    Variant answer;
    const HRESULT result = object_->Invoke(member.id, IID_NULL, kCallLocale, kind, &parameters,
                                           puts ? nullptr : answer.put(), exception.put(), nullptr);
    if (SUCCEEDED(result)) return answer;
    if (busy.WaitAfter(exception.Result(result))) continue;
    throw AutomationError(member.name, exception.Result(result), exception.Description());
  }
}

Dispatch Dispatch::Get(const Member& member, Arguments arguments) const {
  return ObjectIn(member, Invoke(member, DISPATCH_PROPERTYGET, arguments));
}

Variant Dispatch::GetValue(const Member& member) const {
  return Invoke(member, DISPATCH_PROPERTYGET, {});
}

void Dispatch::Put(const Member& member, const Variant& value, Patience patience) const {
  Invoke(member, DISPATCH_PROPERTYPUT, {&value}, patience);
}

void Dispatch::Call(const Member& member, Arguments arguments, Patience patience) const {
  Invoke(member, DISPATCH_METHOD, arguments, patience);
}

Dispatch Dispatch::CallForObject(const Member& member, Arguments arguments) const {
  return ObjectIn(member, Invoke(member, DISPATCH_METHOD, arguments));
}

}  // namespace qm
