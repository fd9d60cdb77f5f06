// Processes, as far as what they leave behind needs them.
#pragma once

#include <functional>

namespace wb {

long OwnProcessId();
bool ProcessRuns(long id);

// Cleans up should this process end, even by force, while the watch lasts; otherwise at the watch's
// end. `clean_up` may find nothing to do. Windows has nobody to watch: there only the end counts.
class Watch {
 public:
  explicit Watch(std::function<void()> clean_up);
  ~Watch();
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

 private:
  std::function<void()> clean_up_;
  int lifeline_ = -1;  // of a pipe that ends with us
  long watchman_ = -1;
};

}  // namespace wb
