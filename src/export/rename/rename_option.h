// The host's option by which models are saved into the working directory, wherever they came from.
#pragma once

#include "toolkit/types.h"

namespace qm {

// Set for as long as this lives. Its end puts back what was set before, where nothing was the
// host's default, also when memory has run out.
class StoreBackOption {
 public:
  StoreBackOption();
  StoreBackOption(const StoreBackOption&) = delete;
  StoreBackOption& operator=(const StoreBackOption&) = delete;
  ~StoreBackOption() { Restore(); }

  // The option stays set.
  void Leave() { is_done_ = true; }
  // Now instead of at the end.
  void Restore();

 private:
  ProPath before_ = {};
  bool is_done_ = false;
};

}  // namespace qm
