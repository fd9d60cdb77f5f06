// Reports of host functions that are missing.
#include "frame/guard/host_binding.h"

#include "frame/messages/message_area.h"
#include "frame/messages/run_log.h"

namespace qm {

#if defined(QM_VENDOR_SDK)

// The loader has bound every function.
void ReportMissingFunctions() {}
HostBinding CurrentHostBinding() {
  return {.by_vendor_library = true};
}
bool IsForeignHost() {
  return false;
}

#else

namespace {

// A function may be missed within any call, also while another one is being reported: the message
// area's own function may be the next.
void ReportMissing(const char* name) {
  static constinit bool is_reporting = false;
  try {
    LogEvent(std::string("couldn't find pointer to ProE-side function: ") + name);
    if (is_reporting) return;
    is_reporting = true;
    std::wstring file_name = kNoteFile;
    ProMessageDisplay(file_name.data(), "couldn't find pointer to ProE-side function: %0s", name);
  } catch (...) {
    LogEvent("couldn't find pointer to ProE-side function");
  }
  is_reporting = false;
}

}  // namespace

void ReportMissingFunctions() {
  missing_function_reporter = &ReportMissing;
}

HostBinding CurrentHostBinding() {
  HostBinding binding;
  binding.declared = DeclaredFunctions();
  for (const HostEntry* entry = HostEntry::first(); entry != nullptr; entry = entry->next()) {
    ++binding.looked_up;
    if (entry->bound()) {
      ++binding.bound;
    } else {
      binding.missing.emplace_back(entry->name());
    }
  }
  return binding;
}

bool IsForeignHost() {
  return !IsAnyFunctionOffered();
}

#endif

}  // namespace qm
