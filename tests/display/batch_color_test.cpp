// BatchColor by the shipped tables, and drawn by chance.
#include <cstdio>
#include <set>
#include <unordered_map>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"
#include "workbench/script/script_windows.h"

namespace wb {
namespace {

// An assembly of so many parts.
void AddAssembly(Session& session, int parts) {
  Model top({"top", ModelKind::kAssembly});
  for (int i = 0; i < parts; ++i) {
    const ModelName name{"part" + std::to_string(i), ModelKind::kPart};
    session.Add(Model(name));
    top.solid().features.Add(NewComponent(i + 1, name));
  }
  session.ActivateWindow(session.ShowInWindow(session.Add(std::move(top))).id);
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

TEST_F(BatchColour, TakesTheColoursOfTheChosenTableAlone) {
  AddAssembly(host_.session, 500);
  const struct {
    const char* mode;
    const char* file;
    size_t colours;
  } tables[] = {{"asUG", "QmUGColor.ini", 217}, {"Optimization", "QmOptiColor.ini", 201}};
  for (const auto& table : tables) {
    UseMode(table.mode);
    const std::set<Rgb> colours = ColoursIn(table.file);
    EXPECT_EQ(colours.size(), table.colours);
    RunClean();
    // Each section is read once, however many models get its colour.
    EXPECT_LE(counts_["GetPrivateProfileStringW"], 218);
    std::set<Rgb> used;
    for (const Rgb& colour : ColoursOfParts()) {
      EXPECT_TRUE(colours.contains(colour));
      used.insert(colour);
    }
    EXPECT_GT(used.size(), 50u);
  }
}

TEST_F(BatchColour, DrawsOtherColoursWhenTimeHasPassed) {
  UseMode("random");
  AddAssembly(host_.session, 8);
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
