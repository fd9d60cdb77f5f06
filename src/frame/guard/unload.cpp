// Takes the C++ run-time's reserve for exceptions along when the plug-in is unloaded. The run-time
// linked into a library takes it at loading, some 70 KB, and by itself leaves it behind: a host
// that loads and unloads its plug-ins again and again would grow.
#include <cstddef>

#if defined(__GLIBCXX__)

namespace __gnu_cxx {
// The run-time's own function for this; its headers do not declare it.
void __freeres();  // NOLINT(bugprone-reserved-identifier)
}  // namespace __gnu_cxx

namespace {

__attribute__((destructor)) void FreeExceptionReserve() {
  __gnu_cxx::__freeres();
}

}  // namespace

#endif
