// Columns and cells of family tables.
#include "assembly/components/instance_cell.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <string_view>

#include "assembly/components/mdl_count_rules.h"
#include "frame/guard/filled.h"
#include "frame/messages/run_log.h"
#include "frame/models/parameters.h"
#include "frame/text/fixed_text.h"
#include "toolkit/parameter.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// How a step ended: the host's function that decided it, and its status.
using Step = ParameterResult;
constexpr Step kDone = {"", PRO_TK_NO_ERROR};
constexpr Step kLoggedAlready = {nullptr, PRO_TK_GENERAL_ERROR};
constexpr Step kReadOnly = {"adding a column to the generic, whose file is not writable,",
                            PRO_TK_NO_PERMISSION};
constexpr Step kNoOwnParameter = {"making a parameter in a generic that is itself an instance",
                                  PRO_TK_NOT_VALID};
constexpr Step kUnfitType = {"a count in a parameter that is neither number nor text",
                             PRO_TK_INVALID_TYPE};

// Tried without a change, with whoever else has the file open.
DWORD ErrorOfWriting(const std::wstring& file) {
  const HANDLE opened = ::CreateFileW(file.c_str(), GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return ::GetLastError();
  ::CloseHandle(opened);
  return ERROR_SUCCESS;
}

// The file with the highest number behind `file`; `file` itself when there is none.
std::wstring NewestVersion(const std::wstring& file) {
  WIN32_FIND_DATAW found = {};
  const HANDLE search = ::FindFirstFileW((file + L".*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return file;
  const size_t number_at = file.size() - (file.find_last_of(L"\\/") + 1) + 1;
  long newest = 0;
  do {
    const std::wstring_view name = found.cFileName;
    if (name.size() > number_at) {
      newest = std::max(newest, std::wcstol(&name[number_at], nullptr, 10));
    }
  } while (::FindNextFileW(search, &found));
  ::FindClose(search);
  return newest > 0 ? file + L"." + std::to_wstring(newest) : file;
}

// A model that was never saved has no file that could refuse.
bool IsWritable(ProMdl model) {
  ProPath origin = {};
  const ProError status = ProMdlOriginGet(model, origin);
  if (status == PRO_TK_E_NOT_FOUND) return true;
  const std::wstring file(FixedText(origin));
  if (!Ok(status) || file.empty()) return false;
  DWORD error = ErrorOfWriting(file);
  // Whether the host tells the version is not certain; without it the newest one is meant.
  if (error == ERROR_FILE_NOT_FOUND) error = ErrorOfWriting(NewestVersion(file));
  return error == ERROR_SUCCESS;
}

class InstanceCell {
 public:
  InstanceCell(const InstanceCount& counted, HostName& parameter)
      : counted_(counted), parameter_(parameter) {}

  Step Write() {
    Step step = FindColumn();
    if (Ok(step.status)) step = FindInstance();
    if (Ok(step.status)) step = NeedColumn();
    if (!Ok(step.status)) return step;
    return {"ProFaminstanceValueSet", ProFaminstanceValueSet(&instance_, &column_, &value_)};
  }

 private:
  // The generic's parameter decides the type; its column need not be in the table.
  Step FindColumn() {
    ProModelitem owner{};
    ProError status = ProMdlToModelitem(counted_.generic, &owner);
    if (!Ok(status) || owner.owner == nullptr) return {"ProMdlToModelitem", Failing(status)};
    const ReadValue held = ReadParameter(owner, parameter_);
    if (!held.is_known) return kLoggedAlready;
    const Step present = held.value ? kDone : MakeParameter(owner);
    if (!Ok(present.status)) return present;
    const auto value = CountAs(held.value ? held.value->type : PRO_PARAM_INTEGER, counted_.count);
    if (!value) return kUnfitType;
    value_ = *HostValue(*value);
    ProParameter parameter{};
    const Step found = FindParameter(owner, parameter_, &parameter);
    if (!Ok(found.status)) return found;
    status = ProParameterToFamtableItem(&parameter, &column_);
    return {"ProParameterToFamtableItem", FilledStatus(status, column_)};
  }

  // A column cannot be without the generic's own value, and the generic is not counted here.
  Step MakeParameter(const ProModelitem& owner) {
    if (counted_.is_generic_instance) return kNoOwnParameter;
    if (!IsWritable(counted_.generic)) return kReadOnly;
    return CreateParameter(owner, parameter_, *HostValue(ParamValue(0)));
  }

  Step FindInstance() {
    ProError status = FilledStatus(ProFamtableInit(counted_.generic, &table_), table_);
    if (!Ok(status)) return {"ProFamtableInit", status};
    auto host_name = HostName::From(counted_.instance);
    if (!host_name) return {"ProFaminstanceInit", PRO_TK_LINE_TOO_LONG};
    status = ProFaminstanceInit(host_name->name, &table_, &instance_);
    return {"ProFaminstanceInit", FilledStatus(status, instance_)};
  }

  Step NeedColumn() {
    ProParamvalue present{};
    const ProError status = ProFaminstanceValueGet(&instance_, &column_, &present);
    if (Ok(status)) return kDone;
    if (status != PRO_TK_E_NOT_FOUND) return {"ProFaminstanceValueGet", status};
    if (!IsWritable(counted_.generic)) return kReadOnly;
    const ProError added = ProFamtableItemAdd(&table_, &column_);
    return {"ProFamtableItemAdd", added == PRO_TK_E_FOUND ? PRO_TK_NO_ERROR : added};
  }

  static ProError Failing(ProError status) { return Ok(status) ? PRO_TK_GENERAL_ERROR : status; }

  const InstanceCount& counted_;
  HostName& parameter_;
  ProParamvalue value_{};
  ProFamtable table_{};
  ProFamtableItem column_{};
  ProFaminstance instance_{};
};

}  // namespace

bool WriteInstanceCount(const InstanceCount& counted, HostName& parameter) {
  const auto [function, status] = InstanceCell(counted, parameter).Write();
  if (!Ok(status) && function != nullptr) LogFailure(counted.instance, function, status);
  return Ok(status);
}

}  // namespace qm
