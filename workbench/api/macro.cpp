// Host functions for macros.
#include "workbench/host/arguments.h"

using namespace wb;

namespace {

// Longer than any that a user writes; a text without an end is found by it.
constexpr size_t kLongestMacro = 100'000;

}  // namespace

ProError ProMacroLoad(wchar_t* macro) {
  return Crossing(__func__, TextIn{macro, kLongestMacro, "macro"})
      .Run([](const Call& call, const std::string& text) {
        call.host.events.Add(QueuedMacro{text});
        return PRO_TK_NO_ERROR;
      });
}
