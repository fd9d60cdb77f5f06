// The host's option by which models are saved into the working directory, wherever they came from.
#pragma once

#include <string>

namespace qm {

// Sets the option. Whoever holds this puts it back: there are ways out that deliberately do not.
class StoreBackOption {
 public:
  StoreBackOption();
  StoreBackOption(const StoreBackOption&) = delete;
  StoreBackOption& operator=(const StoreBackOption&) = delete;

  // As it was; where it was not set, the host's default.
  void Restore();

 private:
  std::wstring before_;
};

// The same, put back at the latest when this ends.
class StoreBackMeanwhile : public StoreBackOption {
 public:
  ~StoreBackMeanwhile() { Restore(); }
};

}  // namespace qm
