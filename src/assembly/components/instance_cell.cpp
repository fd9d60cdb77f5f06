// Columns and cells of family tables.
#include "assembly/components/instance_cell.h"

#include <windows.h>

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
constexpr Step kUnfitType = {"a count in a parameter that is neither number nor text",
                             PRO_TK_INVALID_TYPE};

// A model that was never saved has no file that could refuse.
bool IsWritable(ProMdl model) {
  ProPath origin = {};
  const ProError status = ProMdlOriginGet(model, origin);
  if (status == PRO_TK_E_NOT_FOUND) return true;
  const std::wstring file(FixedText(origin));
  if (!Ok(status) || file.empty()) return false;
  // Opened without a change, with whoever else has it open.
  const HANDLE opened = ::CreateFileW(file.c_str(), GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(opened);
  return true;
}

class InstanceCell {
 public:
  InstanceCell(ProMdl generic, HostName& parameter) : generic_(generic), parameter_(parameter) {}

  Step Write(const std::wstring& instance, int count) {
    Step step = FindColumn(count);
    if (Ok(step.status)) step = FindInstance(instance);
    if (Ok(step.status)) step = NeedColumn();
    if (!Ok(step.status)) return step;
    return {"ProFaminstanceValueSet", ProFaminstanceValueSet(&instance_, &column_, &value_)};
  }

 private:
  // The generic's parameter decides the type; its column need not be in the table.
  Step FindColumn(int count) {
    ProModelitem owner{};
    const ProError owned = ProMdlToModelitem(generic_, &owner);
    if (!Ok(owned) || owner.owner == nullptr) return {"ProMdlToModelitem", Failing(owned)};
    const ReadValue held = ReadParameter(owner, parameter_);
    if (!held.is_known) return kLoggedAlready;
    if (!held.value) {
      // A column cannot be without the generic's own value, and the generic is not counted here.
      if (!IsWritable(generic_)) return kReadOnly;
      const Step created = CreateParameter(owner, parameter_, *HostValue(ParamValue(0)));
      if (!Ok(created.status)) return created;
    }
    const auto value = CountAs(held.value ? held.value->type : PRO_PARAM_INTEGER, count);
    if (!value) return kUnfitType;
    value_ = *HostValue(*value);
    ProParameter parameter{};
    const Step found = FindParameter(owner, parameter_, &parameter);
    if (!Ok(found.status)) return found;
    const ProError status = ProParameterToFamtableItem(&parameter, &column_);
    return {"ProParameterToFamtableItem", FilledStatus(status, column_)};
  }

  Step FindInstance(const std::wstring& name) {
    const ProError status = FilledStatus(ProFamtableInit(generic_, &table_), table_);
    if (!Ok(status)) return {"ProFamtableInit", status};
    auto host_name = HostName::From(name);
    if (!host_name) return {"ProFaminstanceInit", PRO_TK_LINE_TOO_LONG};
    const ProError named = ProFaminstanceInit(host_name->name, &table_, &instance_);
    return {"ProFaminstanceInit", FilledStatus(named, instance_)};
  }

  Step NeedColumn() {
    ProParamvalue present{};
    const ProError status = ProFaminstanceValueGet(&instance_, &column_, &present);
    if (Ok(status)) return kDone;
    if (status != PRO_TK_E_NOT_FOUND) return {"ProFaminstanceValueGet", status};
    if (!IsWritable(generic_)) return kReadOnly;
    const ProError added = ProFamtableItemAdd(&table_, &column_);
    return {"ProFamtableItemAdd", added == PRO_TK_E_FOUND ? PRO_TK_NO_ERROR : added};
  }

  static ProError Failing(ProError status) { return Ok(status) ? PRO_TK_GENERAL_ERROR : status; }

  ProMdl generic_;
  HostName& parameter_;
  ProParamvalue value_{};
  ProFamtable table_{};
  ProFamtableItem column_{};
  ProFaminstance instance_{};
};

}  // namespace

bool WriteInstanceCount(ProMdl generic, const std::wstring& instance, HostName& parameter,
                        int count) {
  const auto [function, status] = InstanceCell(generic, parameter).Write(instance, count);
  if (!Ok(status) && function != nullptr) LogFailure(instance, function, status);
  return Ok(status);
}

}  // namespace qm
