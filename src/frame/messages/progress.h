// How far a long batch of models is, in the message area.
#pragma once

#include <cstddef>

namespace qm {

// Notes every 200 models of more than 200.
class Progress {
 public:
  explicit Progress(std::size_t all) : all_(all) {}
  // One model more is done.
  void Step();

 private:
  std::size_t all_;
  std::size_t done_ = 0;
};

}  // namespace qm
