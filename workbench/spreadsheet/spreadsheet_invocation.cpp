// Arguments and results of automation calls.
#include "workbench/host/call.h"
#include "workbench/spreadsheet/spreadsheet_members.h"

#include <oleauto.h>

namespace wb {
namespace {

// A copy of a value in another type.
class Converted {
 public:
  Converted(const VARIANT& value, VARTYPE type) {
    ::VariantInit(&value_);
    result_ = ::VariantChangeType(&value_, const_cast<VARIANT*>(&value), 0, type);
  }
  ~Converted() { ::VariantClear(&value_); }
  Converted(const Converted&) = delete;
  Converted& operator=(const Converted&) = delete;

  const VARIANT& Value(size_t index) const {
    if (FAILED(result_)) {
      throw WrongCall{DISP_E_TYPEMISMATCH,
                      "argument " + std::to_string(index + 1) + " is of the wrong type"};
    }
    return value_;
  }

 private:
  VARIANT value_;
  HRESULT result_;
};

bool IsMissingMark(const VARIANT& value) {
  return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace

Invocation::Invocation(SpreadsheetServer& called_server, AutomationObject& called, long call_number,
                       const DISPPARAMS& parameters, VARIANT* result)
    : server(called_server), object(called), call(call_number), result_(result) {
  // The last argument stands first.
  for (UINT i = parameters.cArgs; i > 0; --i) {
    const VARIANT* const value = &parameters.rgvarg[i - 1];
    const bool by_reference = value->vt == (VT_BYREF | VT_VARIANT);
    arguments_.push_back(by_reference ? value->pvarVal : value);
  }
}

const VARIANT& Invocation::Argument(size_t index) const {
  if (IsMissing(index)) {
    throw WrongCall{DISP_E_PARAMNOTOPTIONAL,
                    "argument " + std::to_string(index + 1) + " is missing"};
  }
  return *arguments_[index];
}

bool Invocation::IsMissing(size_t index) const {
  return index >= arguments_.size() || IsMissingMark(*arguments_[index]);
}

std::string Invocation::Text(size_t index) const {
  const VARIANT& value = Argument(index);
  if (value.vt != VT_BSTR) {
    throw WrongCall{DISP_E_TYPEMISMATCH, "argument " + std::to_string(index + 1) + " is no text"};
  }
  return FromWide({value.bstrVal, ::SysStringLen(value.bstrVal)});
}

int Invocation::Number(size_t index) const {
  return Converted(Argument(index), VT_I4).Value(index).lVal;
}

double Invocation::Decimal(size_t index) const {
  return Converted(Argument(index), VT_R8).Value(index).dblVal;
}

bool Invocation::Flag(size_t index) const {
  return Converted(Argument(index), VT_BOOL).Value(index).boolVal != VARIANT_FALSE;
}

VARIANT& Invocation::ResultPlace() const {
  if (result_ == nullptr) throw WrongCall{E_POINTER, "no place for the result"};
  ::VariantInit(result_);
  return *result_;
}

void Invocation::Give(ObjectKind kind, ObjectPlace place) const {
  VARIANT& result = ResultPlace();
  result.vt = VT_DISPATCH;
  result.pdispVal = new AutomationObject(server, kind, std::move(place), call);
}

void Invocation::Give(const CellValue& value) const {
  VARIANT& result = ResultPlace();
  if (const auto* text = std::get_if<std::string>(&value)) {
    const std::wstring wide = ToWide(*text);
    result.vt = VT_BSTR;
    result.bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  } else if (const auto* number = std::get_if<double>(&value)) {
    result.vt = VT_R8;
    result.dblVal = *number;
  } else if (const auto* flag = std::get_if<bool>(&value)) {
    result.vt = VT_BOOL;
    result.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
}

void Invocation::Give(int number) const {
  VARIANT& result = ResultPlace();
  result.vt = VT_I4;
  result.lVal = number;
}

Worksheet& Invocation::ChangedSheet() const {
  OpenWorkbook& book = *Place().book;
  book.saved = false;
  return book.book.sheets[Place().sheet];
}

}  // namespace wb
