// One button's change, applied to dimensions.
#pragma once

#include <string>

#include "drawing/change/dim_modify_rules.h"
#include "toolkit/types.h"

namespace qm {

class DimensionChange {
 public:
  // `typed` is what the user typed for the button.
  DimensionChange(const DimButton& button, std::wstring typed)
      : button_(button), typed_(std::move(typed)) {}

  // A dimension that refuses keeps what it has, with a line in the run log.
  void Apply(ProModelitem& dimension) const;

 private:
  void SetText(ProModelitem& dimension) const;
  void SetTolerance(ProModelitem& dimension) const;

  const DimButton& button_;
  std::wstring typed_;
};

}  // namespace qm
