// How far the plug-in is bound to its host: each host function is looked up at its first call.
#pragma once

#include <string>
#include <vector>

namespace qm {

// From now on a host function that cannot be found is named in the run log and in the message
// area, once each.
void ReportMissingFunctions();

struct HostBinding {
  bool by_vendor_library = false;  // then the loader has bound everything and nothing is counted
  int looked_up = 0;
  int bound = 0;
  std::vector<std::string> missing;
};

HostBinding CurrentHostBinding();

}  // namespace qm
