// New names of models in their files and in the models that use them.
#include "workbench/session/renaming.h"

#include <gtest/gtest.h>

#include "tests/workbench/temporary_folder.h"
#include "workbench/base/utf8_text.h"
#include "workbench/session/model_file.h"
#include "workbench/session/session.h"

namespace wb {
namespace {

class Renaming : public testing::Test {
 protected:
  Renaming() { session_.ChangeDirectory(folder_.path); }

  Model& Add(ModelName name) {
    Model model(std::move(name));
    model.folder = folder_.path;
    return session_.Add(std::move(model));
  }

  TemporaryFolder folder_{"workbench-renaming"};
  Session session_;
};

TEST_F(Renaming, EveryVersionMovesAndSaysTheNewName) {
  Model& bolt = Add({"bolt", ModelKind::kPart});
  session_.Save(bolt);
  bolt.note = "second";
  session_.Save(bolt);
  std::filesystem::copy_file(folder_.path / "bolt.prt.1", folder_.path / "bolt.prt");
  std::ofstream(folder_.path / "bolt.prt.7") << "no model file";
  const ModelName after{"螺栓", ModelKind::kPart};
  RenameModelFiles(folder_.path, {"BOLT", ModelKind::kPart}, after);
  EXPECT_FALSE(HasModelFile(folder_.path, bolt.id));
  EXPECT_TRUE(HasModelFile(folder_.path, {"螺栓", ModelKind::kPart}));
  for (const char* file : {"螺栓.prt", "螺栓.prt.1", "螺栓.prt.2"}) {
    EXPECT_EQ(ReadModelFile(folder_.path / PathFromUtf8(file)).id.name, "螺栓") << file;
  }
  EXPECT_EQ(ReadModelFile(folder_.path / PathFromUtf8("螺栓.prt.2")).note, "second");
  EXPECT_EQ(ReadFileBytes(folder_.path / PathFromUtf8("螺栓.prt.7")), "no model file");
}

TEST_F(Renaming, UsersPointAtTheModelAndHaveWorkForTheirNextSave) {
  Model& bolt = Add({"bolt", ModelKind::kPart});
  Model& other = Add({"other", ModelKind::kPart});
  Model& pump = Add({"pump", ModelKind::kAssembly});
  pump.solid().features.Add(NewComponent(1, bolt.id));
  pump.solid().features.Add(NewComponent(2, {"gone", ModelKind::kPart}));
  Model& drawing = Add({"bolt", ModelKind::kDrawing});
  auto& content = *drawing.As<DrawingContent>();
  content.shows = ModelLink{bolt.id, &bolt};
  content.sheets.push_back({"A4", 1.0});
  content.sheets[0].scales.Add({"bolt.prt", 0.5});
  content.sheets[0].scales.Add({"other.prt", 2});
  session_.Complete(pump);
  session_.Save(pump);
  session_.Rename(bolt, "screw");
  EXPECT_EQ(session_.Find({"SCREW", ModelKind::kPart}), &bolt);
  EXPECT_TRUE(pump.modified && drawing.modified && bolt.modified);
  EXPECT_FALSE(other.modified);
  EXPECT_EQ(pump.FindFeature(1)->ComponentModel(), &bolt);
  EXPECT_EQ(SheetScale(content.sheets[0], bolt.id), 0.5);
  EXPECT_EQ(SheetScale(content.sheets[0], other.id), 2);
  const auto held = [&](int version) {
    const auto file = folder_.path / ("pump.asm." + std::to_string(version));
    return ReadModelFile(file).FindFeature(1)->component->link.name.name;
  };
  EXPECT_EQ(held(1), "bolt");
  session_.Save(pump);
  EXPECT_EQ(held(2), "screw");
}

TEST_F(Renaming, TheUsersSaveTakesTheChangedModelsUnderAnAssembly) {
  Model& bolt = Add({"bolt", ModelKind::kPart});
  Model& plate = Add({"plate", ModelKind::kPart});
  Model& rotor = Add({"rotor", ModelKind::kAssembly});
  rotor.solid().features.Add(NewComponent(1, bolt.id));
  rotor.solid().features.Add(NewComponent(2, plate.id));
  Model& pump = Add({"pump", ModelKind::kAssembly});
  pump.solid().features.Add(NewComponent(1, rotor.id));
  Model& other = Add({"other", ModelKind::kPart});
  for (Model* model : {&bolt, &plate, &rotor, &pump, &other}) {
    session_.Complete(*model);
    session_.Save(*model);
  }
  session_.Rename(bolt, "screw");
  other.modified = true;
  session_.SaveWithHeld(pump);
  EXPECT_EQ(rotor.version, 2);
  const Model saved = ReadModelFile(folder_.path / "rotor.asm.2");
  EXPECT_EQ(saved.FindFeature(1)->component->link.name.name, "screw");
  EXPECT_EQ(pump.version, 2);
  EXPECT_EQ(plate.version, 1);
  EXPECT_EQ(other.version, 1);
  EXPECT_FALSE(bolt.modified);
  session_.SaveWithHeld(bolt);
  EXPECT_EQ(rotor.version, 2);
}

TEST(LegalModelNames, AreLettersDigitsAndTwoSigns) {
  for (const char* name : {"a", "A-1_b", "螺栓_M8", "1001"}) EXPECT_TRUE(IsLegalModelName(name));
  EXPECT_TRUE(IsLegalModelName(std::string(31, 'x')));
  EXPECT_FALSE(IsLegalModelName(std::string(32, 'x')));
  for (const char* name : {"", "-a", "a b", "a.b", "a/b", "a*", "a\tb"}) {
    EXPECT_FALSE(IsLegalModelName(name)) << name;
  }
}

}  // namespace
}  // namespace wb
