// The smallest STEP assembly for tests, and a placement as text.
#pragma once

#include <cmath>
#include <cstdio>
#include <string>

#include "tests/workbench/step/step_text_builder.h"

namespace wb {

// Axes and origin, twelve numbers.
inline std::string Rows(const StepPlacement& placement) {
  std::string text;
  for (const auto& row : placement.m) {
    for (int k = 0; k < 3; ++k) {
      const double rounded = std::round(row[k] * 1e6) / 1e6;
      char number[32];
      std::snprintf(number, sizeof number, "%g ", rounded == 0 ? 0.0 : rounded);
      text += number;
    }
  }
  return text;
}

// An assembly "pump" and a part "bolt", with the axes that place the part.
struct StepPair {
  StepTextBuilder file;
  int context, from, to;
  StepTextBuilder::Part bolt, pump;

  StepPair() {
    context = file.Metric(".MILLI.");
    from = file.Axis("1.,0.,0.");
    to = file.Axis("10.,20.,30.", "1.,0.,0.", "0.,1.,0.");
    bolt = file.Product("bolt", {from}, context);
    pump = file.Product("pump", {to}, context);
  }
};

}  // namespace wb
