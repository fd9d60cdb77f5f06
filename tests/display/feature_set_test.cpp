// Which component features count as the same one.
#include "display/feature_set.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(FeatureSet, AFeatureIsKnownByItsIdAndOwnerTogether) {
  const int pump = 0, frame = 0;  // only their addresses matter
  FeatureSet met;
  EXPECT_TRUE(met.Insert(40, &pump));
  EXPECT_TRUE(met.Insert(41, &pump));
  EXPECT_TRUE(met.Insert(40, &frame));
  EXPECT_FALSE(met.Insert(40, &pump));
  EXPECT_FALSE(met.Insert(40, &frame));
  EXPECT_TRUE(met.Insert(41, &frame));
}

}  // namespace
}  // namespace qm
