// BatchColor by the shipped tables, and on more placements than a script would write down.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <unordered_map>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

// An assembly of `models` parts, placed in turn.
Model& AddAssembly(Session& session, int models, int placements) {
  Model top({"top", ModelKind::kAssembly});
  for (int i = 0; i < models; ++i) {
    session.Add(Model({"part" + std::to_string(i), ModelKind::kPart}));
  }
  for (int i = 0; i < placements; ++i) {
    const ModelName name{"part" + std::to_string(i % models), ModelKind::kPart};
    top.solid().features.Add(NewComponent(i + 1, name));
  }
  Model& added = session.Add(std::move(top));
  session.ActivateWindow(session.ShowInWindow(added).id);
  return added;
}

// The colours of a shipped table.
std::set<Rgb> ColoursIn(const std::string& file) {
  std::set<Rgb> colours;
  for (int section = 0; section < 300; ++section) {
    const auto value =
        ReadProfile(Installed().tree() / "QMconfig" / file, std::to_string(section), "value");
    if (!value) continue;
    Rgb colour;
    int channels[3] = {};
    EXPECT_EQ(std::sscanf(value->c_str(), "%d.%d.%d", &channels[0], &channels[1], &channels[2]), 3);
    for (size_t i = 0; i < 3; ++i) colour[i] = channels[i] / 255.0;
    colours.insert(colour);
  }
  return colours;
}

class BatchColour : public PluginHost {
 protected:
  ~BatchColour() override { UseMode("random"); }

  void UseMode(const char* mode) {
    ASSERT_TRUE(WriteProfile(Installed().tree() / "QMconfig" / "QmConfig.ini", "QmRandomColorOpt",
                             "value", mode));
  }
  void RunClean() {
    Plugin plugin(Installed().dll());
    ASSERT_EQ(plugin.Start(), 0);
    const CommandRun run = RunCommand("BatchColor");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.left_out, Lines());
    counts_ = host_.trace.Counts();
    EXPECT_EQ(TakeBreaches(), Lines());
  }
  std::vector<Rgb> ColoursOfParts() {
    std::vector<Rgb> colours;
    for (const auto& model : host_.session.models()) {
      if (model->id.kind != ModelKind::kPart) continue;
      EXPECT_TRUE(model->solid().appearance);
      colours.push_back(model->solid().appearance.value_or(Appearance()).colour);
    }
    return colours;
  }
  std::unordered_map<std::string, long> counts_;
};

TEST_F(BatchColour, WritesEachOfThirtyModelsOnceForTenThousandPlacements) {
  UseMode("random");
  AddAssembly(host_.session, 30, 10000);
  RunClean();
  EXPECT_EQ(counts_["ProSurfaceAppearancepropsSet"], 30);
  EXPECT_EQ(counts_["ProWindowRepaint"], 1);
}

TEST_F(BatchColour, TakesTheColoursOfTheChosenTableAlone) {
  const std::pair<const char*, const char*> tables[] = {{"asUG", "QmUGColor.ini"},
                                                        {"Optimization", "QmOptiColor.ini"}};
  for (const auto& [mode, file] : tables) {
    UseMode(mode);
    const std::set<Rgb> colours = ColoursIn(file);
    EXPECT_GE(colours.size(), 201u);
    if (host_.session.models().empty()) AddAssembly(host_.session, 500, 500);
    RunClean();
    // Each section is read once, however many models get its colour.
    EXPECT_LE(counts_["GetPrivateProfileStringW"], 218);
    std::set<Rgb> used;
    for (const auto& model : host_.session.models()) {
      if (model->id.kind != ModelKind::kPart) continue;
      ASSERT_TRUE(model->solid().appearance);
      EXPECT_TRUE(colours.contains(model->solid().appearance->colour)) << model->id.Text();
      used.insert(model->solid().appearance->colour);
    }
    EXPECT_GT(used.size(), 50u);
  }
}

TEST_F(BatchColour, ReadsTableValuesWithBlanks) {
  const std::filesystem::path file = Installed().tree() / "QMconfig" / "QmUGColor.ini";
  const std::filesystem::path kept = Installed().tree() / "QMconfig" / "QmUGColor.kept";
  std::filesystem::rename(file, kept);
  std::ofstream blank(file);
  for (int section = 0; section < 217; ++section) {
    blank << "[" << section << "]\nvalue=10 . 20 . 30\n";
  }
  blank.close();
  UseMode("asUG");
  AddAssembly(host_.session, 3, 3);
  RunClean();
  const Rgb written = {10 / 255.0, 20 / 255.0, 30 / 255.0};
  EXPECT_EQ(ColoursOfParts(), std::vector<Rgb>(3, written));
  std::filesystem::remove(file);
  std::filesystem::rename(kept, file);
}

TEST_F(BatchColour, DrawsOtherColoursWhenTimeHasPassed) {
  UseMode("random");
  AddAssembly(host_.session, 8, 8);
  std::set<std::vector<Rgb>> drawn;
  for (int second = 0; second < 3; ++second) {
    host_.windows.slept_ms = 1000 * static_cast<unsigned>(second);
    RunClean();
    drawn.insert(ColoursOfParts());
  }
  EXPECT_EQ(drawn.size(), 3u);
}

}  // namespace
}  // namespace wb
