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
  int declared = 0;                // all that the plug-in may call
  int looked_up = 0;
  int bound = 0;
  std::vector<std::string> missing;
};

HostBinding CurrentHostBinding();

// Whether the process offers none of the functions: it is no host that the plug-in could serve.
bool IsForeignHost();

}  // namespace qm
