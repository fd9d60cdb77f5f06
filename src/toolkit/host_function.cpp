// Finds host functions in the process that loaded the plug-in.
#include "toolkit/host_function.h"

#if !defined(QM_VENDOR_SDK)
#include <windows.h>

namespace qm {

void* FindHostFunction(const char* versioned_name) {
  return reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(nullptr), versioned_name));
}

}  // namespace qm
#endif
