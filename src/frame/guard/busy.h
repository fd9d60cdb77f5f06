// One command at a time: while a command runs, or its modal dialog is up, a second one is refused.
#pragma once

namespace qm {

// Takes the busy flag for its lifetime when it is free.
class BusyScope {
 public:
  BusyScope() : taken_(!busy_) { busy_ = true; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;
  ~BusyScope() {
    if (taken_) busy_ = false;
  }

  // False when another command holds the flag.
  bool taken() const { return taken_; }

 private:
  inline static constinit bool busy_ = false;
  bool taken_;
};

}  // namespace qm
