// A late-bound automation client for tests: objects by reference, values as variants, members by
// number, as the plug-in calls them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "workbench/base/text.h"
#include "workbench/base/windows_headers.h"

#include <oleauto.h>

namespace wb {

// A value that is passed or has come back.
class TestValue {
 public:
  TestValue() { ::VariantInit(&value); }
  TestValue(const char* text) : TestValue() {  // NOLINT: as written in a call
    const std::wstring wide = ToWide(text);
    value.vt = VT_BSTR;
    value.bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  }
  TestValue(const std::string& text) : TestValue(text.c_str()) {}  // NOLINT
  TestValue(int number) : TestValue() {                            // NOLINT
    value.vt = VT_I4;
    value.lVal = number;
  }
  TestValue(bool flag) : TestValue() {  // NOLINT
    value.vt = VT_BOOL;
    value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  TestValue(TestValue&& other) noexcept : value(other.value) { ::VariantInit(&other.value); }
  ~TestValue() { ::VariantClear(&value); }

  std::string Text() const {
    return value.vt == VT_BSTR ? FromWide({value.bstrVal, ::SysStringLen(value.bstrVal)}) : "";
  }

  VARIANT value;
};

// One reference to an object. `result` is that of the last call made through any of them.
class TestObject {
 public:
  TestObject() = default;
  explicit TestObject(void* object) : object_(static_cast<IDispatch*>(object)) {}
  TestObject(TestObject&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  TestObject& operator=(TestObject&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~TestObject() {
    if (object_ != nullptr) object_->Release();
  }

  template <typename... Arguments>
  TestObject Get(DISPID id, Arguments... arguments) const {
    return TestObject::From(Invoke(id, DISPATCH_PROPERTYGET, std::move(arguments)...));
  }
  TestValue Value(DISPID id) const { return Invoke(id, DISPATCH_PROPERTYGET); }
  template <typename... Arguments>
  TestObject Call(DISPID id, Arguments... arguments) const {
    return TestObject::From(Invoke(id, DISPATCH_METHOD, std::move(arguments)...));
  }
  template <typename Argument>
  HRESULT Put(DISPID id, Argument argument) const {
    Invoke(id, DISPATCH_PROPERTYPUT, std::move(argument));
    return result;
  }

  template <typename... Arguments>
  TestValue Invoke(DISPID id, WORD kind, Arguments... arguments) const {
    std::vector<TestValue> values;
    (values.emplace_back(arguments), ...);
    std::vector<VARIANT> reversed;
    for (auto at = values.rbegin(); at != values.rend(); ++at) reversed.push_back(at->value);
    DISPID put = DISPID_PROPERTYPUT;
    const bool puts = kind == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters = {reversed.data(), puts ? &put : nullptr,
                             static_cast<UINT>(reversed.size()), puts ? 1u : 0u};
    EXCEPINFO exception = {};
    TestValue answer;
    result = object_ == nullptr ? E_POINTER
                                : object_->Invoke(id, IID_NULL, 0, kind, &parameters, &answer.value,
                                                  &exception, nullptr);
    description.clear();
    if (exception.bstrDescription != nullptr) description = FromWide(exception.bstrDescription);
    ::SysFreeString(exception.bstrSource);
    ::SysFreeString(exception.bstrDescription);
    return answer;
  }

  IDispatch* get() const { return object_; }

  inline static HRESULT result = S_OK;
  inline static std::string description;

 private:
  static TestObject From(TestValue value) {
    if (value.value.vt != VT_DISPATCH) return TestObject();
    value.value.vt = VT_EMPTY;
    return TestObject(value.value.pdispVal);
  }

  IDispatch* object_ = nullptr;
};

}  // namespace wb
