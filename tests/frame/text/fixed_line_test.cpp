// Lines built without an allocation.
#include "frame/text/fixed_line.h"

#include <gtest/gtest.h>

#include <limits>

namespace qm {
namespace {

TEST(FixedLine, CutsWhatDoesNotFitAndGoesOnWhenCleared) {
  FixedLine<8> line;
  line += "12345";
  line.AddNumber(6789);
  EXPECT_EQ(line.text(), "12345678");
  EXPECT_EQ(line.room(), 0u);
  line += "9";
  EXPECT_EQ(line.text(), "12345678");
  line.clear();
  line += "again";
  EXPECT_EQ(line.text(), "again");
}

TEST(FixedLine, WritesNumbersWithLeadingZerosAndTheLeastOne) {
  FixedLine<64> line;
  line.AddNumber(7, 3) += " ";
  line.AddNumber(0) += " ";
  line.AddNumber(1234, 3) += " ";
  line.AddNumber(std::numeric_limits<long long>::min());
  EXPECT_EQ(line.text(), "007 0 1234 -9223372036854775808");
}

}  // namespace
}  // namespace qm
