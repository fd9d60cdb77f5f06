// The modes of each access rule.
#include "entry/access_rules.h"

#include "toolkit/numbers.h"

namespace qm {

bool AllowsMode(AccessRule rule, int mode) {
  const bool in_part = mode == PRO_MODE_PART_1 || mode == PRO_MODE_PART_2;
  switch (rule) {
    case AccessRule::kAlways:
      return true;
    case AccessRule::kAssemblyMode:
      return mode == PRO_MODE_ASSEMBLY || mode == PRO_MODE_MFG;
    case AccessRule::kSolidMode:
      return in_part || mode == PRO_MODE_ASSEMBLY || mode == PRO_MODE_MFG;
    case AccessRule::kPartOrAssemblyMode:
      return in_part || mode == PRO_MODE_ASSEMBLY;
    case AccessRule::kDrawingMode:
      return mode == PRO_MODE_DRAWING;
  }
  return false;
}

}  // namespace qm
