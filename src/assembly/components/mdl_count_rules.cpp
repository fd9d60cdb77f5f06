// Settings and values of counts.
#include "assembly/components/mdl_count_rules.h"

#include <string>

namespace qm {

InstanceCounts InstanceCountsBy(std::wstring_view setting) {
  return setting == L"1" ? InstanceCounts::kOwnCells : InstanceCounts::kIntoGeneric;
}

std::optional<ParamValue> CountAs(ProParamvalueType type, int count) {
  switch (type) {
    case PRO_PARAM_INTEGER:
      return ParamValue(count);
    case PRO_PARAM_DOUBLE:
      return ParamValue(static_cast<double>(count));
    case PRO_PARAM_STRING:
      return ParamValue(std::to_wstring(count));
    default:
      return std::nullopt;
  }
}

}  // namespace qm
