// Where an import may write its models, what it tells, and what one that fails leaves: nothing.
#include "workbench/base/text.h"
#include "workbench/step/import.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

#if !defined(_WIN32)
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#endif

#include "tests/workbench/error_from.h"
#include "tests/workbench/temporary_folder.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class Import : public testing::Test {
 protected:
  Import() {
    std::ofstream(folder_ / "notes.txt") << "mine";
    const Model bolt({"bolt", ModelKind::kPart});
    bolt_.models.push_back(bolt);
    bolt_.tops.push_back(bolt.id);
  }

  std::string ErrorOf(const fs::path& target) const {
    return ErrorFrom([&] { WriteModels(bolt_, target); });
  }

  // Everything below the folder, "/" after folders.
  std::set<std::string> Present() const {
    std::set<std::string> names;
    for (const auto& item : fs::recursive_directory_iterator(folder_)) {
      names.insert(PathToUtf8(item.path().filename()) + (item.is_directory() ? "/" : ""));
    }
    return names;
  }

  const TemporaryFolder temporary_{"quillmax import test"};
  const fs::path& folder_ = temporary_.path;
  ImportedModels bolt_;
};

TEST_F(Import, AFileInPlaceOfTheFolderIsToldAndNothingIsWritten) {
  const fs::path file = folder_ / "notes.txt";
  for (const fs::path& target : {file, file / "deeper" / "still"}) {
    const std::string error = ErrorOf(target);
    EXPECT_EQ(error.find(PathToUtf8(file) + " is a file, and models need a folder; name"), 0u)
        << error;
    EXPECT_EQ(Present(), std::set<std::string>{"notes.txt"}) << PathToUtf8(target);
  }
}

TEST_F(Import, OneThatIsThereTakesThemHoweverItIsNamed) {
  const fs::path there = folder_ / "there";
  for (const fs::path& target : {there, there / "", there / "." / ".." / "there"}) {
    fs::remove_all(there);
    fs::create_directories(there);
    std::ofstream(there / "bolt.drw.1") << "mine";
    EXPECT_EQ(ErrorOf(target), "");
    EXPECT_EQ(Present(), (std::set<std::string>{"notes.txt", "there/", "bolt.drw.1", "bolt.prt.1"}))
        << PathToUtf8(target);
    EXPECT_TRUE(fs::exists(there / "bolt.prt.1"));
  }
}

TEST_F(Import, WhatADeadOneLeftIsUndoneAndWhatIsSomebodysStays) {
  const fs::path dead = folder_ / ".import-999999999";
  fs::create_directories(dead / "files");
  std::ofstream(dead / "unfinished import");
  std::ofstream(dead / "files" / "nut.prt.1");
  std::ofstream(dead / "moving", std::ios::binary) << "nut.prt.1\nbolt.prt.7\n";
  std::ofstream(folder_ / "nut.prt.1") << "mine";
  std::ofstream(folder_ / "bolt.prt.7") << "half of it";
  fs::create_directories(folder_ / ".import-plans");
  EXPECT_EQ(ErrorOf(folder_), "");
  EXPECT_EQ(Present(),
            (std::set<std::string>{"notes.txt", "nut.prt.1", "bolt.prt.1", ".import-plans/"}));
}

TEST_F(Import, OneThatFailsHalfWayLeavesNothing) {
  bolt_.models.push_back(bolt_.models.front());
  for (const fs::path& target : {folder_, folder_ / "new"}) {
    EXPECT_NE(ErrorOf(target).find("two models would share the file bolt.prt.1"),
              std::string::npos);
    EXPECT_EQ(Present(), std::set<std::string>{"notes.txt"});
  }
}

#if !defined(_WIN32)
class KilledImport : public Import {
 protected:
  // Enough to be met at work.
  KilledImport() {
    for (int i = 0; i < kModels; ++i) {
      bolt_.models.push_back(Model({"bolt_" + std::to_string(i), ModelKind::kPart}));
    }
  }

  // Starts an import in a process of its own and kills it once `reached` says so.
  template <typename Reached>
  void KillWhen(const fs::path& target, Reached reached) {
    const pid_t process = ::fork();
    if (process == 0) {
      WriteModels(bolt_, target);
      ::_exit(0);
    }
    while (!reached() && ::waitpid(process, nullptr, WNOHANG) == 0) std::this_thread::yield();
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
  }

  // What is there once the cleaning up has come to its end.
  std::set<std::string> PresentAtLast() const {
    constexpr int kMostWaits = 3000;
    for (int i = 0; i < kMostWaits && !Stagings().empty(); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return Present();
  }
  std::vector<fs::path> Stagings() const {
    std::vector<fs::path> found;
    for (const auto& item : fs::directory_iterator(folder_)) {
      if (PathToUtf8(item.path().filename()).starts_with(".import-")) found.push_back(item.path());
    }
    return found;
  }
  // Whether files of an import wait to be delivered.
  bool HasStaged() const {
    const std::vector<fs::path> stagings = Stagings();
    std::error_code error;
    return !stagings.empty() && fs::exists(stagings[0] / "files" / "bolt_9.prt.1", error);
  }

  static constexpr int kModels = 2000;
};

TEST_F(KilledImport, LeavesNothing) {
  KillWhen(folder_, [&] { return HasStaged(); });
  EXPECT_EQ(PresentAtLast(), std::set<std::string>{"notes.txt"});
}

TEST_F(KilledImport, LeavesNothingOrAllWhereItsFilesAreBeingMoved) {
  KillWhen(folder_, [&] { return fs::exists(folder_ / "bolt_9.prt.1"); });
  const size_t present = PresentAtLast().size();
  EXPECT_TRUE(present == 1 || present == kModels + 2) << present;
}

TEST_F(KilledImport, LeavesNoFolderThatItWouldHaveMade) {
  KillWhen(folder_ / "new" / "one", [&] { return !Stagings().empty(); });
  const std::set<std::string> present = PresentAtLast();
  EXPECT_TRUE(present.size() == 1 || present.contains("bolt_9.prt.1"));
}
#endif

// Assemblies of two of the next one each, and a bolt at the end.
ImportedModels Doubling(int levels) {
  ImportedModels imported;
  for (int i = 0; i < levels; ++i) {
    const bool last = i + 1 == levels;
    const ModelName under = last ? ModelName{"bolt", ModelKind::kPart}
                                 : ModelName{"a" + std::to_string(i + 1), ModelKind::kAssembly};
    Model model({"a" + std::to_string(i), ModelKind::kAssembly});
    for (const int id : {1, 2}) model.solid().features.Add(NewComponent(id, under));
    imported.models.push_back(std::move(model));
  }
  imported.models.push_back(Model({"bolt", ModelKind::kPart}));
  imported.tops.push_back(imported.models.front().id);
  return imported;
}

TEST(ImportTable, CountsWhatAnyAssemblyHolds) {
  const struct {
    int levels;
    const char* count;
  } cases[] = {{3, "  8\n"}, {40, "  1099511627776\n"}, {64, "  over 18446744073709551614\n"}};
  for (const auto& item : cases) {
    const std::string table = ModelTable(Doubling(item.levels));
    const std::string last = table.substr(table.rfind("bolt.prt"));
    EXPECT_NE(last.find(item.count), std::string::npos) << item.levels << ": " << last;
  }
}

}  // namespace
}  // namespace wb
