// Lists of files, parts of paths, saving, and numbers that the user is asked for.
#include "tests/absent_user.h"
#include "tests/workbench/api/drawing_contract.h"

namespace wb {
namespace {

TEST_F(DrawingContract, FilesAreListedByPatternWithTheirVersions) {
  for (const char* name :
       {"b.drw.1", "b.drw.2", "B.drw.10", "a.DRW.3", "a.prt.1", "c.drw", "d.frm"}) {
    WriteFile(name, "");
  }
  const auto list = [&](std::wstring filter, ProFileListOpt option) {
    ProPath* files = nullptr;
    ProPath* folders = nullptr;
    ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&files));
    ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&folders));
    EXPECT_EQ(ProFilesList(nullptr, filter.data(), option, &files, &folders), PRO_TK_NO_ERROR);
    int count = 0;
    ProArraySizeGet(files, &count);
    Lines names;
    for (int i = 0; i < count; ++i) {
      names.push_back(PathToUtf8(std::filesystem::path(files[i]).filename()));
    }
    ProArrayFree(reinterpret_cast<ProArray*>(&files));
    ProArrayFree(reinterpret_cast<ProArray*>(&folders));
    return Join(" ", names);
  };
  EXPECT_EQ(list(L"*.drw", PRO_FILE_LIST_LATEST), "a.DRW.3 B.drw.10 c.drw");
  EXPECT_EQ(list(L"*.drw,*.frm", PRO_FILE_LIST_ALL),
            "a.DRW.3 b.drw.1 b.drw.2 B.drw.10 c.drw d.frm");
  ProPath* missing = nullptr;
  wchar_t filter[] = L"*.drw";
  EXPECT_EQ(ProFilesList(nullptr, filter, PRO_FILE_LIST_LATEST, &missing, &missing),
            PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches().size(), 1u);
}

TEST_F(DrawingContract, PathsHaveTheirParts) {
  const auto parts = [&](std::wstring text) {
    text.resize(PRO_PATH_SIZE);
    ProPath folder, name, extension;
    int version = -1;
    EXPECT_EQ(ProFilenameParse(text.data(), folder, name, extension, &version), PRO_TK_NO_ERROR);
    return FromWide(folder) + "|" + FromWide(name) + "|" + FromWide(extension) + "|" +
           std::to_string(version);
  };
  EXPECT_EQ(parts(L"D:\\图框\\a3.frm.12"), "D:\\图框\\|a3|frm|12");
  EXPECT_EQ(parts(L"bolt.DRW"), "|bolt|DRW|0");
  EXPECT_EQ(parts(L"C:/x.y/bolt"), "C:/x.y/|bolt||0");
  EXPECT_EQ(parts(L"bolt.3"), "|bolt|3|0");
}

TEST_F(DrawingContract, OnlyWhatHasChangedIsSavedAndOnlyWhereOneMayWrite) {
  EXPECT_EQ(ProMdlSave(plate_->handle), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProMdlSave(plate_->handle), PRO_TK_NO_ERROR);
  EXPECT_EQ(plate_->version, 1);
  plate_->modified = true;
  host_.session.MakeReadOnly(folder_);
  EXPECT_EQ(ProMdlSave(plate_->handle), PRO_TK_NO_PERMISSION);
  EXPECT_TRUE(plate_->modified);
}

// Quits once the replies are used up.
class Replying : public AbsentUser {
 public:
  std::optional<std::string> AnswerPrompt(const std::string&, int) override {
    if (next == replies.size()) return std::nullopt;
    return replies[next++];
  }
  std::vector<std::string> replies;
  size_t next = 0;
};

TEST_F(DrawingContract, ANumberIsAskedForUntilThereIsOneInTheRange) {
  host_.events.Add(Note{"Scale: |||2.5"});
  double range[] = {0, 10};
  const auto read = [&](const std::vector<std::string>& replies, double& value) {
    Replying user;
    user.replies = replies;
    host_.user = &user;
    const ProError status = ProMessageDoubleRead(range, &value);
    host_.user = nullptr;
    return status;
  };
  double value = 1;
  EXPECT_EQ(read({"much", "11", "0.5"}, value), PRO_TK_NO_ERROR);
  EXPECT_EQ(value, 0.5);
  EXPECT_EQ(read({""}, value), PRO_TK_NO_ERROR);
  EXPECT_EQ(value, 2.5);
  EXPECT_EQ(read({"11"}, value), PRO_TK_MSG_USER_QUIT);
  EXPECT_EQ(value, 2.5);
}

TEST_F(DrawingContract, WhatAnEarlierCommandHasShownIsNoPrompt) {
  host_.events.Add(Note{"Name: |||bolt"});
  host_.command_began = host_.events.Mark();
  ProLine text = L"untouched";
  EXPECT_EQ(ProMessageStringRead(31, text), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), Lines{"plug-in misused ProMessageStringRead: a reply without a prompt"});
}

TEST_F(DrawingContract, AModelIsSavedElsewhereWhereTheOptionSaysSo) {
  std::filesystem::create_directories(folder_ / "other");
  host_.session.ChangeDirectory(folder_ / "other");
  wchar_t option[] = L"Override_Store_Back";
  wchar_t yes[] = L"yes";
  EXPECT_EQ(ProConfigoptSet(option, yes), PRO_TK_NO_ERROR);
  plate_->modified = true;
  EXPECT_EQ(ProMdlSave(plate_->handle), PRO_TK_NO_ERROR);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "other" / "plate.prt.1"));
}

}  // namespace
}  // namespace wb
