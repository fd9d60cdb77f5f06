// Access functions, one a rule.
#include "entry/access.h"

#include "frame/guard/shield.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

template <AccessRule Rule>
uiCmdAccessState Access(uiCmdAccessMode) {
  return AccessNow(Rule);
}

template <AccessRule Rule>
constexpr uiCmdAccessFn kAccess = &Shielded<&Access<Rule>>::Call;

}  // namespace

uiCmdAccessState AccessNow(AccessRule rule) {
  if (rule == AccessRule::kAlways) return ACCESS_AVAILABLE;
  ProMode mode = PRO_MODE_UNUSED;
  if (!Ok(ProModeCurrentGet(&mode))) return ACCESS_UNAVAILABLE;
  return AllowsMode(rule, mode) ? ACCESS_AVAILABLE : ACCESS_UNAVAILABLE;
}

uiCmdAccessFn AccessFunction(AccessRule rule) {
  switch (rule) {
    case AccessRule::kAlways:
      return kAccess<AccessRule::kAlways>;
    case AccessRule::kAssemblyMode:
      return kAccess<AccessRule::kAssemblyMode>;
    case AccessRule::kSolidMode:
      return kAccess<AccessRule::kSolidMode>;
    case AccessRule::kPartOrAssemblyMode:
      return kAccess<AccessRule::kPartOrAssemblyMode>;
    case AccessRule::kDrawingMode:
      return kAccess<AccessRule::kDrawingMode>;
  }
  return kAccess<AccessRule::kAlways>;
}

}  // namespace qm
