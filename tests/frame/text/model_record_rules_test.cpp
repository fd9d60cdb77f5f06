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
      {{L"", L"C", L"D:\\other"}, L"D:\\other"},
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

// What the record says after it was pointed to another folder, and its device and path.
struct Pointed {
  std::optional<std::wstring> folder;
  std::wstring device, path;
  bool operator==(const Pointed&) const = default;
};

Pointed PointedTo(std::wstring_view folder, const ProMdldataOrder& order, const Texts& texts) {
  std::wstring record = RecordOf(order, texts);
  if (!SetFolderInModelRecord(record, L"BOLT", folder)) return {};
  return {FolderInModelRecord(record, L"bolt"), record.c_str() + order.device,
          record.c_str() + order.path};
}

TEST(ModelRecord, IsPointedToAnotherFolderInItsOwnForm) {
  const struct {
    const wchar_t *device, *path, *folder, *new_device, *new_path;
  } cases[] = {
      {L"C:", L"\\work\\parts\\", L"D:\\备份", L"D:", L"\\备份\\"},
      {L"C", L"\\work\\parts", L"D:\\backup\\", L"D", L"\\backup"},
      {L"", L"C:\\work\\", L"D:\\b", L"", L"D:\\b\\"},
      {L"", L"", L"D:\\b", L"", L"D:\\b"},
      {L"C:", L"\\work\\", L"\\\\server\\b", L"", L"\\\\server\\b\\"},
      {L"C:", L"\\a long path that is followed by a short one", L"D:\\", L"D:", L"\\"},
  };
  for (const ProMdldataOrder& order : {kModelDataNameLast, kModelDataNameFirst}) {
    for (const auto& c : cases) {
      const Pointed pointed = PointedTo(c.folder, order, {L"", c.device, c.path});
      EXPECT_EQ(pointed.device, c.new_device);
      EXPECT_EQ(pointed.path, c.new_path);
      EXPECT_TRUE(pointed.folder.has_value());
    }
  }
}

TEST(ModelRecord, IsNotPointedWhereTheFolderDoesNotFitOrTheOrderIsUnknown) {
  const std::wstring long_folder = L"D:\\" + std::wstring(PRO_PATH_SIZE - 1, L'x');
  EXPECT_EQ(PointedTo(long_folder, kModelDataNameLast, {L"", L"C:", L"\\a"}), Pointed());
  const ProMdldataOrder unknown = {12, 44, 48, 80, 112, 372};
  EXPECT_EQ(PointedTo(L"D:\\b", unknown, {L"", L"C:", L"\\a"}), Pointed());
}

}  // namespace
}  // namespace qm
