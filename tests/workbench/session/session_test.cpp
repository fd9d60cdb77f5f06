// Models that files bring into session, and files that must not.
#include "workbench/session/session.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/workbench/temporary_folder.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class SessionFiles : public testing::Test {
 protected:
  SessionFiles() { session_.ChangeDirectory(folder_); }

  void Write(const std::string& name, const std::string& rest) const {
    std::ofstream(folder_ / (name + ".1"), std::ios::binary)
        << "{\n  \"format\": 1,\n  \"model\": \"" << name << "\",\n  " << rest << "\n}\n";
  }
  // A component a line; the first stands in line 5.
  void WriteAssembly(const std::string& name, const std::vector<std::string>& components) const {
    std::string rest = "\"features\": [";
    int id = 0;
    for (const std::string& component : components) {
      rest += std::string(id == 0 ? "" : ",") + "\n    {\"id\": " + std::to_string(id) +
              ", \"model\": \"" + component + "\"}";
      ++id;
    }
    Write(name, rest + "\n  ]");
  }

  std::string ErrorOf(const ModelName& name) {
    try {
      session_.Retrieve(name);
    } catch (const ModelFileError& error) {
      return error.what();
    }
    return "retrieved";
  }

  const TemporaryFolder temporary_{"quillmax session test"};
  const fs::path& folder_ = temporary_.path;
  Session session_;
};

constexpr const char* kWayOut = "; mend the file, or delete it and import or save the model again";

TEST_F(SessionFiles, AnAssemblyThatWouldHoldItselfIsRefusedWithFileLineAndWay) {
  Write("bolt.prt", "\"note\": \"\"");
  Write("pump.drw", "\"drawing_of\": \"pump.asm\"");
  WriteAssembly("pump.asm", {"bolt.prt", "rotor.asm", "bolt.prt"});
  WriteAssembly("rotor.asm", {"bolt.prt", "bolt.prt", "bolt.prt", "Pump.asm"});
  const std::string expected = PathToUtf8(folder_ / "rotor.asm.1") +
                               ": line 8: pump.asm would hold itself: pump.asm > rotor.asm > "
                               "pump.asm" +
                               kWayOut;
  for (const ModelKind kind : {ModelKind::kAssembly, ModelKind::kDrawing}) {
    EXPECT_EQ(ErrorOf({"pump", kind}), expected);
    EXPECT_TRUE(session_.models().empty());
  }
}

TEST_F(SessionFiles, SoIsOneThatHoldsItselfAsItsManufacturingModel) {
  WriteAssembly("pump.asm", {"mill.mfg"});
  Write("mill.mfg", "\"assembly\": \"pump.asm\"");
  EXPECT_EQ(ErrorOf({"pump", ModelKind::kAssembly}),
            PathToUtf8(folder_ / "mill.mfg.1") +
                ": line 4: pump.asm would hold itself: pump.asm > mill.mfg > pump.asm" + kWayOut);
}

TEST_F(SessionFiles, ABrokenFileIsNamedAndNoModelOfItsAssemblyComesIntoSession) {
  WriteAssembly("pump.asm", {"bolt.prt", "rotor.asm"});
  Write("bolt.prt", "\"note\": \"\"");
  WriteAssembly("rotor.asm", {"nut.prt"});
  Write("nut.prt", "\"note\" \"\"");
  EXPECT_EQ(ErrorOf({"pump", ModelKind::kAssembly}),
            PathToUtf8(folder_ / "nut.prt.1") + ": line 4: not valid JSON" + kWayOut);
  EXPECT_TRUE(session_.models().empty());

  fs::remove(folder_ / "nut.prt.1");
  fs::create_directories(folder_ / "nut.prt.2");
  EXPECT_EQ(ErrorOf({"pump", ModelKind::kAssembly}),
            PathToUtf8(folder_ / "nut.prt.2") + ": is a folder" + kWayOut);
}

TEST_F(SessionFiles, AModelPlacedInSeveralAssembliesIsNoCycle) {
  WriteAssembly("top.asm", {"left.asm", "right.asm", "left.asm", "lost.asm"});
  WriteAssembly("left.asm", {"pair.asm"});
  WriteAssembly("right.asm", {"pair.asm", "left.asm"});
  WriteAssembly("pair.asm", {});
  EXPECT_EQ(ErrorOf({"top", ModelKind::kAssembly}), "retrieved");
  EXPECT_EQ(session_.models().size(), 4u);
}

TEST_F(SessionFiles, WhatNoShownModelNeedsIsErased) {
  Session session;
  for (const char* name : {"bolt", "nut", "gear"}) session.Add(Model({name, ModelKind::kPart}));
  Model pump({"pump", ModelKind::kAssembly});
  pump.solid().features.Add(NewComponent(1, {"bolt", ModelKind::kPart}));
  Model& added = session.Add(std::move(pump));
  session.Add(Model({"frame", ModelKind::kFormat}));
  session.Add(Model({"other", ModelKind::kFormat}));
  Model drawing({"pump", ModelKind::kDrawing});
  drawing.As<DrawingContent>()->shows = ModelLink{added.id, &added};
  drawing.As<DrawingContent>()->sheets.push_back({.format = "frame.frm"});
  session.ShowInWindow(session.Add(std::move(drawing)));
  session.EraseNotDisplayed();
  std::vector<std::string> left;
  for (const auto& model : session.models()) left.push_back(model->id.Text());
  EXPECT_EQ(left, (std::vector<std::string>{"bolt.prt", "pump.asm", "frame.frm", "pump.drw"}));
}

TEST_F(SessionFiles, AFullPathMeansThatFileAndThoseBesideIt) {
  Write("bolt.prt", "\"note\": \"first\"");
  fs::copy_file(folder_ / "bolt.prt.1", folder_ / "bolt.prt.3");
  WriteAssembly("pump.asm", {"bolt.prt"});
  session_.ChangeDirectory(fs::temp_directory_path());
  const auto version = [&](const char* name) {
    Model* const model = session_.RetrieveFile(folder_ / name, ModelKind::kPart);
    const int found = model == nullptr ? 0 : model->version;
    if (model != nullptr) session_.Erase(*model);
    return found;
  };
  EXPECT_EQ(version("bolt.prt.1"), 1);
  EXPECT_EQ(version("bolt.prt"), 3);
  EXPECT_EQ(version("bolt.prt.2"), 0);
  EXPECT_EQ(version("pump.asm"), 0) << "of another kind";
  EXPECT_EQ(version("bolt"), 0);
  ASSERT_NE(session_.RetrieveFile(folder_ / "pump.asm.1", ModelKind::kAssembly), nullptr);
  EXPECT_NE(session_.Find({"bolt", ModelKind::kPart}), nullptr);
}

}  // namespace
}  // namespace wb
