// The modes of each access rule.
#include "frame/access_rules.h"

namespace qm {
namespace {

// The host's mode numbers.
constexpr int kPartMode = 1;
constexpr int kSecondPartMode = 2;
constexpr int kAssembly = 5;
constexpr int kDrawing = 6;
constexpr int kManufacturing = 8;

}  // namespace

bool AllowsMode(AccessRule rule, int mode) {
  const bool in_part = mode == kPartMode || mode == kSecondPartMode;
  switch (rule) {
    case AccessRule::kAlways:
      return true;
    case AccessRule::kAssemblyMode:
      return mode == kAssembly || mode == kManufacturing;
    case AccessRule::kSolidMode:
      return in_part || mode == kAssembly || mode == kManufacturing;
    case AccessRule::kPartOrAssemblyMode:
      return in_part || mode == kAssembly;
    case AccessRule::kDrawingMode:
      return mode == kDrawing;
  }
  return false;
}

}  // namespace qm
