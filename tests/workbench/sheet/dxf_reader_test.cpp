// What is refused as no DXF file, however much of one there is.
#include "workbench/sheet/dxf_reader.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

constexpr const char* kFile =
    "999\r\nwritten by hand\r\n"
    "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1021\r\n"
    "  9\r\n$CUSTOMPROPERTYTAG\r\n  1\r\nSheet\r\n  9\r\n$CUSTOMPROPERTY\r\n  1\r\n2\r\n"
    "  0\r\nENDSEC\r\n  0\r\nSECTION\r\n  2\r\nTABLES\r\n  0\r\nTABLE\r\n  2\r\nLAYER\r\n"
    "  0\r\nLAYER\r\n  2\r\nVIEW_3\r\n 70\r\n0\r\n  0\r\nENDTAB\r\n  0\r\nENDSEC\r\n"
    "  0\r\nSECTION\r\n  2\r\nBLOCKS\r\n  0\r\nTEXT\r\n  8\r\n0\r\n  1\r\nnot seen\r\n"
    "  0\r\nENDSEC\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"
    "  0\r\nTEXT\r\n  8\r\nNOTE\r\n 10\r\n5.0\r\n  1\r\n  未注倒角 C1\r\n"
    "  0\r\nLWPOLYLINE\r\n  8\r\nVIEW_3\r\n 10\r\n1.0\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n";

TEST(DxfReader, RefusesWhatIsNoDxfFileAtAnyLength) {
  const std::string file = kFile;
  EXPECT_EQ(ReadDxf(file).texts.size(), 1u);
  for (std::size_t length = 0; length + 3 < file.size(); ++length) {
    EXPECT_THROW(ReadDxf(file.substr(0, length)), DxfError) << length;
  }
  EXPECT_THROW(ReadDxf("%PDF-1.5\nno\n"), DxfError);
  EXPECT_THROW(ReadDxf("This file stands for the DXF file of sheet 1.\n"), DxfError);
}

}  // namespace
}  // namespace wb
