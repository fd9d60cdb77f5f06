// Thresholds of the transparency switches. Records that are not used: transparent.qms.
#include "display/appearance_rules.h"

#include <gtest/gtest.h>

#include <cmath>

namespace qm {
namespace {

TEST(ModelTransparency, SwitchesBelowOneFifth) {
  for (const double opaque : {0.0, 0.1, std::nextafter(0.2, 0)}) {
    EXPECT_EQ(SwitchedModelTransparency(opaque), 0.618) << opaque;
  }
  for (const double clear : {0.2, 0.618}) EXPECT_EQ(SwitchedModelTransparency(clear), 0.0) << clear;
}

TEST(SurfaceTransparency, SwitchesBackWhenNearlyClear) {
  for (const double clear : {1.0, 0.96}) EXPECT_EQ(SwitchedSurfaceTransparency(clear), 0.0);
  // 1 - 0.95 is a little more than 0.05 in doubles.
  for (const double opaque : {0.0, 0.9, 0.95}) EXPECT_EQ(SwitchedSurfaceTransparency(opaque), 1.0);
}

}  // namespace
}  // namespace qm
