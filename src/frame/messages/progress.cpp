// Progress notes.
#include "frame/messages/progress.h"

#include <string>

#include "frame/messages/message_area.h"

namespace qm {
namespace {

constexpr std::size_t kModelsPerNote = 200;

}  // namespace

void Progress::Step() {
  ++done_;
  if (all_ <= kModelsPerNote || done_ % kModelsPerNote != 0) return;
  DisplayNote("Models done: %0w", std::to_wstring(done_).c_str());
}

}  // namespace qm
