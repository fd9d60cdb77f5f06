// One automation call from the plug-in: counted, traced, open to orders and faults, checked.
#include "workbench/spreadsheet/spreadsheet_objects.h"

#include <algorithm>
#include <iterator>

#include "workbench/spreadsheet/spreadsheet_members.h"
#include "workbench/windows/windows_crossing.h"

#include <objbase.h>
#include <oleauto.h>

namespace wb {
namespace {

using Refusal = SpreadsheetServer::Refusal;

// The trace's name for calls of members that do not exist.
constexpr const char* kNoMember = "Excel.unknown";
// The program's own code for nearly all of its errors.
constexpr HRESULT kProgramFailure = static_cast<HRESULT>(0x800A03EC);
// Its user is in the middle of something.
constexpr HRESULT kUserIsTyping = static_cast<HRESULT>(0x800AC472);
constexpr HRESULT kBusyResults[] = {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER,
                                    kUserIsTyping};

std::string DescribeVariant(const VARIANT& value) {
  switch (value.vt) {
    case VT_BSTR:
      return "\"" + FromWide({value.bstrVal, ::SysStringLen(value.bstrVal)}) + "\"";
    case VT_I4:
      return std::to_string(value.lVal);
    case VT_R8:
      return NumberText(value.dblVal);
    case VT_BOOL:
      return value.boolVal == VARIANT_FALSE ? "false" : "true";
    case VT_ERROR:
      return "missing";
    default:
      return "type " + std::to_string(value.vt);
  }
}

std::string DescribeParameters(const DISPPARAMS* parameters) {
  if (parameters == nullptr || !TheHost().trace.keep_lines) return {};
  std::vector<std::string> texts;
  for (UINT i = parameters->cArgs; i > 0; --i) {
    texts.push_back(DescribeVariant(parameters->rgvarg[i - 1]));
  }
  return Join(", ", texts);
}

BSTR NewText(const std::string& text) {
  const std::wstring wide = ToWide(text);
  return ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

HRESULT Raise(EXCEPINFO* exception, const std::string& description) {
  if (exception != nullptr) {
    *exception = {};
    exception->bstrSource = NewText("Microsoft Excel");
    exception->bstrDescription = NewText(description);
    exception->scode = kProgramFailure;
  }
  return DISP_E_EXCEPTION;
}

HRESULT Refused(Refusal refusal, EXCEPINFO* exception) {
  switch (refusal) {
    case Refusal::kRejected:
      return RPC_E_CALL_REJECTED;
    case Refusal::kRetryLater:
      return RPC_E_SERVERCALL_RETRYLATER;
    case Refusal::kInterrupted:
      return kUserIsTyping;
    case Refusal::kDead:
      return RPC_E_SERVERFAULT;
    case Refusal::kException:
      return Raise(exception, "the workbench was told to fail this call");
    default:
      return E_OUTOFMEMORY;
  }
}

const char* CallKindWord(WORD kind) {
  switch (kind) {
    case DISPATCH_METHOD:
      return "a method";
    case DISPATCH_PROPERTYGET:
      return "a property to get";
    case DISPATCH_PROPERTYPUT:
      return "a property to put";
    default:
      return "a mixture";
  }
}

// "Range.Merge".
std::string_view PlainName(const char* name) {
  return std::string_view(name).substr(kSpreadsheetPrefix.size());
}

std::string NoSuchMember(ObjectKind kind, DISPID id, WORD call_kind) {
  if (const SpreadsheetMember* const other = FindMember(kind, id)) {
    return std::string(PlainName(other->name)) + " called as " + CallKindWord(call_kind);
  }
  char number[16];
  std::snprintf(number, sizeof(number), "0x%lX", static_cast<unsigned long>(id));
  return std::string(ObjectWord(kind)) + " has no member " + number;
}

void CheckForm(const SpreadsheetMember& member, REFIID reserved, const DISPPARAMS* parameters) {
  if (reserved != IID_NULL) throw WrongCall{DISP_E_UNKNOWNINTERFACE, "reserved id given"};
  if (parameters == nullptr) throw WrongCall{E_INVALIDARG, "null parameters"};
  const bool puts = member.call_kind == DISPATCH_PROPERTYPUT;
  const bool named_right = puts ? parameters->cNamedArgs == 1 &&
                                      parameters->rgdispidNamedArgs != nullptr &&
                                      parameters->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT
                                : parameters->cNamedArgs == 0;
  if (!named_right) throw WrongCall{DISP_E_NONAMEDARGS, "wrong named arguments"};
  if (parameters->cArgs < member.least || parameters->cArgs > member.most) {
    throw WrongCall{DISP_E_BADPARAMCOUNT, std::to_string(parameters->cArgs) + " arguments"};
  }
}

void CheckAlive(const AutomationObject& object) {
  if (!object.place.program->running) {
    throw WrongCall{RPC_E_DISCONNECTED, "called after Quit"};
  }
  if (object.place.book != nullptr && !object.place.book->open) {
    throw WrongCall{CO_E_OBJNOTCONNECTED, "called after the workbook was closed"};
  }
}

// What the plug-in could not do for no fault of its own is not held against it later. A workbook
// that it could not mark as saved it can still close without saving, unless the program `claims` to
// have marked it.
void Excuse(const AutomationObject& object, const SpreadsheetMember* member, HRESULT result,
            bool claims) {
  const std::string_view name = member == nullptr ? kNoMember : member->name;
  const bool rejected = std::ranges::find(kBusyResults, result) != std::end(kBusyResults);
  if (name == "Excel.Application.Quit") {
    (rejected ? object.place.program->quit_rejected : object.place.program->quit_failed) = true;
  } else if (name == "Excel.Workbook.Close" || (claims && name == "Excel.Workbook.Saved=")) {
    (rejected ? object.place.book->closing_rejected : object.place.book->closing_failed) = true;
  }
}

}  // namespace

const char* ObjectWord(ObjectKind kind) {
  constexpr const char* kWords[] = {"Application", "Workbooks", "Workbook", "Sheets",
                                    "Worksheet",   "Range",     "Interior", "Font"};
  return kWords[static_cast<size_t>(kind)];
}

AutomationObject::AutomationObject(SpreadsheetServer& server, ObjectKind object_kind,
                                   ObjectPlace object_place, long call)
    : kind(object_kind), place(std::move(object_place)), given_by(call), server_(&server) {
  server.Add(this);
}

STDMETHODIMP AutomationObject::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool known = ::IsEqualIID(id, IID_IUnknown) || ::IsEqualIID(id, IID_IDispatch);
  *object = known ? static_cast<IDispatch*>(this) : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) AutomationObject::Release() {
  const ULONG left = --references_;
  if (left == 0) {
    if (server_ != nullptr) server_->Remove(this);
    delete this;
  }
  return left;
}

STDMETHODIMP AutomationObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

STDMETHODIMP AutomationObject::GetTypeInfo(UINT, LCID, ITypeInfo**) {
  return E_NOTIMPL;
}

STDMETHODIMP AutomationObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID*) {
  const std::string name = names == nullptr || count == 0 ? "" : FromWide(names[0]);
  if (server_ != nullptr) {
    TheHost().ReportBreach("Excel", "\"" + name + "\" of " + ObjectWord(kind) +
                                        " looked up by name; members are called by number");
  }
  return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP AutomationObject::Invoke(DISPID id, REFIID reserved, LCID, WORD call_kind,
                                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                      UINT*) {
  if (server_ == nullptr) return RPC_E_DISCONNECTED;
  const SpreadsheetMember* const member = FindMember(kind, id, call_kind);
  const char* const name = member == nullptr ? kNoMember : member->name;
  bool ours = true;  // whether it fails for a reason of the workbench's
  const Faults& faults = TheHost().faults;
  const long struck = faults.struck();
  const HRESULT answer =
      WindowsCrossing(name, DescribeParameters(parameters), HRESULT{E_FAIL}, [&](const Call& call) {
        const Refusal refusal = server_->Meet(name, *place.program);
        if (refusal != Refusal::kNone) return Refused(refusal, exception);
        ours = false;
        try {
          CheckAlive(*this);
          if (member == nullptr) {
            throw WrongCall{DISP_E_MEMBERNOTFOUND, NoSuchMember(kind, id, call_kind)};
          }
          CheckForm(*member, reserved, parameters);
          member->action(Invocation(*server_, *this, call.call, *parameters, result));
          return S_OK;
        } catch (const WrongCall& wrong) {
          call.host.ReportBreach(
              "Excel", (member == nullptr ? "" : std::string(PlainName(name)) + ": ") + wrong.why);
          return wrong.result;
        } catch (const ProgramError& error) {
          return Raise(exception, error.description);
        }
      });
  const bool claims = faults.struck() > struck && faults.claims_success();
  if (FAILED(answer) && ours) Excuse(*this, member, answer, claims);
  return claims ? S_OK : answer;
}

std::string AutomationObject::Describe() const {
  const std::string text = std::string(ObjectWord(kind)) + " from call " + std::to_string(given_by);
  return references_ == 1 ? text : text + " (" + std::to_string(references_) + " references)";
}

}  // namespace wb
