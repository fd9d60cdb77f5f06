// Names on their way to the host: whole or not at all.
#include "frame/models/host_name.h"

#include <gtest/gtest.h>

namespace qm {
namespace {

TEST(HostName, IsNeverCut) {
  const std::wstring longest(31, L'n');
  const auto name = HostName::From(longest);
  ASSERT_TRUE(name);
  EXPECT_EQ(FixedText(name->name), longest);
  EXPECT_FALSE(HostName::From(longest + L"n"));
}

TEST(RetrievalName, IsAModelsNameOrAnInstancesOrAPath) {
  const std::wstring longest(31, L'n');
  const std::wstring instance = longest + L"<" + longest + L"n>";
  const std::wstring path = L"D:\\" + std::wstring(180, L'f') + L"\\bolt.prt.2";
  for (const std::wstring& fits : {longest, instance, path}) {
    const auto name = RetrievalName::From(fits);
    ASSERT_TRUE(name) << fits.size();
    EXPECT_EQ(FixedText(name->name), fits);
  }
  EXPECT_FALSE(RetrievalName::From(longest + L"n"));
  EXPECT_FALSE(RetrievalName::From(instance + L"n"));
  EXPECT_FALSE(RetrievalName::From(path + std::wstring(260 - path.size(), L'n')));
}

}  // namespace
}  // namespace qm
