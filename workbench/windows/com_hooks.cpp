// Programs that are started by automation: the host's stand-in starts in their place.
#include <iterator>

#include "workbench/base/windows_headers.h"
#include "workbench/windows/windows_crossing.h"
#include "workbench/windows/windows_hooks.h"

#include <objbase.h>

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

}  // namespace

HookRows ComHooks() {
  static const Hook kRows[] = {
      HookRow<decltype(CLSIDFromProgID)>("CLSIDFromProgID", &HookCLSIDFromProgID),
      HookRow<decltype(CoCreateInstance)>("CoCreateInstance", &HookCoCreateInstance),
  };
  return kRows;
}

}  // namespace wb
