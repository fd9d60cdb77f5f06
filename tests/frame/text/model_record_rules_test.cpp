// The folder in the host's record of a model, whichever of the known orders the record has.
#include "frame/text/model_record_rules.h"

#include <gtest/gtest.h>

#include "toolkit/numbers.h"

namespace qm {
namespace {

struct Texts {
  const wchar_t* host;
  const wchar_t* device;
  const wchar_t* path;
};

std::wstring RecordOf(const ProMdldataOrder& order, const Texts& texts) {
  std::wstring record(2048, L'\0');
  const auto put = [&](int place, std::wstring_view text) {
    record.replace(static_cast<std::size_t>(place), text.size(), text);
  };
  put(order.name, L"bolt");
  put(order.type, L"prt");
  put(order.host, texts.host);
  put(order.device, texts.device);
  put(order.path, texts.path);
  return record;
}

std::optional<std::wstring> FolderIn(const ProMdldataOrder& order, const Texts& texts,
                                     std::wstring_view asked = L"BOLT") {
  return FolderInModelRecord(RecordOf(order, texts), asked);
}

TEST(ModelRecord, IsReadByWhereItsTextsStand) {
  const struct {
    Texts texts;
    const wchar_t* folder;
  } cases[] = {
      {{L"", L"C:", L"\\work\\parts\\"}, L"C:\\work\\parts\\"},
      {{L"", L"C", L"\\work\\parts"}, L"C:\\work\\parts"},
      {{L"", L"", L"D:\\work\\"}, L"D:\\work\\"},
      {{L"server", L"", L"\\\\server\\share\\parts\\"}, L"\\\\server\\share\\parts\\"},
      {{L"", L"C:", L"parts"}, L"C:\\parts"},
      {{L"", L"C:", L"\\零件\\"}, L"C:\\零件\\"},
      // The texts have changed places.
      {{L"\\work\\parts\\", L"C:", L""}, L"C:\\work\\parts\\"},
      {{L"C:", L"\\work\\", L""}, L"C:\\work\\"},
  };
  for (const ProMdldataOrder& order : {kModelDataNameLast, kModelDataNameFirst}) {
    for (const auto& item : cases) EXPECT_EQ(FolderIn(order, item.texts), item.folder);
  }
}

TEST(ModelRecord, TellsTheFileInBothOrders) {
  const Texts texts = {L"", L"C:", L"\\work\\"};
  for (const ProMdldataOrder& order : {kModelDataNameLast, kModelDataNameFirst}) {
    EXPECT_EQ(FileInModelRecord(RecordOf(order, texts), L"BOLT"), L"bolt.prt");
    EXPECT_EQ(FileInModelRecord(RecordOf(order, texts), L"lid"), std::nullopt);
  }
}

TEST(ModelRecord, SaysNothingWithoutTheNameAtAKnownPlace) {
  const Texts texts = {L"", L"C:", L"\\work\\"};
  EXPECT_EQ(FolderIn(kModelDataNameFirst, texts, L"lid"), std::nullopt);
  EXPECT_EQ(FolderIn(kModelDataNameFirst, texts, L"bol"), std::nullopt);
  EXPECT_EQ(FolderIn(kModelDataNameFirst, texts, L""), std::nullopt);
  EXPECT_EQ(FolderIn({20, 60, 70, 110, 150, 500}, texts), std::nullopt);
}

}  // namespace
}  // namespace qm
