// Programs that are started by automation: the host's stand-in starts in their place. The start of
// COM and its texts are real, and can be made to fail.
#include <iterator>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

#include <objbase.h>
#include <oleauto.h>

namespace wb {
namespace {

HRESULT WINAPI HookCLSIDFromProgID(LPCOLESTR program, LPCLSID class_id) {
  return WindowsCrossing("CLSIDFromProgID", DescribeArgument(program), HRESULT{CO_E_CLASSSTRING},
                         [&](const Call& call) {
                           const std::string name = call.Text(program, PRO_PATH_SIZE, "program id");
                           CLSID& place = call.Place(class_id, "class place");
                           AutomationProgram* const automation = call.host.automation;
                           if (automation == nullptr) return HRESULT{CO_E_CLASSSTRING};
                           return HRESULT{automation->ClassOf(name, &place)};
                         });
}

HRESULT WINAPI HookCoCreateInstance(REFCLSID class_id, LPUNKNOWN, DWORD, REFIID interface_id,
                                    LPVOID* object) {
  wchar_t text[40] = {};
  ::StringFromGUID2(class_id, text, std::size(text));
  return WindowsCrossing("CoCreateInstance", FromWide(text), HRESULT{REGDB_E_CLASSNOTREG},
                         [&](const Call& call) {
                           call.Place(object, "object place") = nullptr;
                           call.host.events.Add(ClassRequest{FromWide(text)});
                           AutomationProgram* const automation = call.host.automation;
                           if (automation == nullptr) return HRESULT{REGDB_E_CLASSNOTREG};
                           return HRESULT{automation->Start(&class_id, &interface_id, object)};
                         });
}

HRESULT WINAPI HookCoInitializeEx(LPVOID reserved, DWORD mode) {
  return WindowsCrossing("CoInitializeEx", std::to_string(mode), HRESULT{E_OUTOFMEMORY},
                         [&](const Call&) { return ::CoInitializeEx(reserved, mode); });
}

BSTR WINAPI HookSysAllocStringLen(const OLECHAR* text, UINT length) {
  return WindowsCrossing("SysAllocStringLen", std::to_string(length), BSTR{nullptr},
                         [&](const Call&) { return ::SysAllocStringLen(text, length); });
}

}  // namespace

HookRows ComHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(CLSIDFromProgID)>("CLSIDFromProgID", &HookCLSIDFromProgID),
      HookRow<decltype(CoCreateInstance)>("CoCreateInstance", &HookCoCreateInstance),
      HookRow<decltype(CoInitializeEx)>("CoInitializeEx", &HookCoInitializeEx),
      HookRow<decltype(SysAllocStringLen)>("SysAllocStringLen", &HookSysAllocStringLen),
  };
  return kRows;
}

}  // namespace wb
