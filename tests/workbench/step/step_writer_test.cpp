// What is written as STEP comes back as it was, and other readers' rules are kept.
#include "workbench/step/write/step_writer.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <random>
#include <set>

#include "tests/workbench/report/page_text.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/text.h"
#include "workbench/session/rotation.h"
#include "workbench/step/import.h"
#include "workbench/step/step_product.h"
#include "workbench/step/write/step_blocks.h"

namespace wb {
namespace {

// Models that hold each other's addresses.
class LinkedModels {
 public:
  Model& Add(const std::string& name, ModelKind kind = ModelKind::kPart) {
    models_.push_back(std::make_unique<Model>(ModelName{name, kind}));
    return *models_.back();
  }
  void Place(Model& parent, Model& child, const Placement& placement = kIdentityPlacement) {
    Feature& added = parent.solid().features.Add(
        NewComponent(NextId(parent.solid().features), child.id, placement));
    added.component->link.model = &child;
  }
  explicit LinkedModels(ImportedModels imported = {}) {
    std::map<std::string, Model*> by_name;
    for (Model& model : imported.models) {
      models_.push_back(std::make_unique<Model>(std::move(model)));
      by_name[models_.back()->id.Text()] = models_.back().get();
    }
    for (const auto& model : models_) {
      ForEachLink(*model, [&](ModelLink& link) { link.model = by_name.at(link.name.Text()); });
    }
    if (!imported.tops.empty()) top_ = by_name.at(imported.tops.front().Text());
  }
  size_t size() const { return models_.size(); }
  Model& at(size_t i) { return *models_[i]; }
  const Model& top() const { return top_ == nullptr ? *models_.front() : *top_; }

 private:
  std::vector<std::unique_ptr<Model>> models_;
  const Model* top_ = nullptr;
};

ImportedModels Imported(const std::string& text) {
  const TemporaryFolder folder("quillmax step writer test");
  std::ofstream(folder.path / "written.stp", std::ios::binary) << text;
  return ReadStepModels(folder.path / "written.stp");
}

LinkedModels WrittenAndRead(const Model& top) {
  return LinkedModels(Imported(StepTextOf(top, "written.stp")));
}

double Random(std::mt19937& numbers, double low, double high) {
  return std::uniform_real_distribution<>(low, high)(numbers);
}
size_t Pick(std::mt19937& numbers, size_t count) {
  return std::uniform_int_distribution<size_t>(0, count - 1)(numbers);
}

// Turned anyhow and moved far; now and then turned inside out, or of another size.
Placement RandomPlacement(std::mt19937& numbers) {
  Rotation turn = kNoRotation;
  for (const ScreenAxis axis : {ScreenAxis::kX, ScreenAxis::kY, ScreenAxis::kZ}) {
    turn = Turned(turn, TurnAbout(axis, Random(numbers, -180, 180)));
  }
  const double size = Pick(numbers, 10) == 0 ? Random(numbers, 0.01, 100) : 1;
  const double side = Pick(numbers, 10) == 0 ? -1 : 1;
  Placement placement = kIdentityPlacement;
  for (size_t k = 0; k < 3; ++k) {
    placement[0][k] = turn[0][k] * size;
    placement[1][k] = turn[1][k] * size * side;
    placement[2][k] = turn[2][k] * size;
    placement[3][k] = Random(numbers, -1e5, 1e5);
  }
  return placement;
}

Box RandomBox(std::mt19937& numbers) {
  Box box;
  for (size_t k = 0; k < 3; ++k) {
    box.min[k] = Random(numbers, -500, 500);
    box.max[k] = box.min[k] + Random(numbers, 1e-3, 300);
  }
  const size_t flat = Pick(numbers, 9);
  if (flat < 3) box.max[flat] = box.min[flat];
  return box;
}

// Assemblies hold models behind them, the first one of them all; parts hold surfaces.
LinkedModels RandomAssembly(unsigned seed) {
  std::mt19937 numbers(seed);
  const std::vector<std::string> words = {"bolt", "螺栓", "GB_5782", "M12x40-A", "Ünit", "法兰盘"};
  LinkedModels models;
  const size_t count = 2 + Pick(numbers, 30);
  for (size_t i = 0; i < count; ++i) {
    const bool part = i + 1 == count || (i > 0 && Pick(numbers, 2) == 0);
    models.Add(words[Pick(numbers, words.size())] + "_" + std::to_string(i),
               part ? ModelKind::kPart : ModelKind::kAssembly);
    const size_t surfaces = part || Pick(numbers, 4) == 0 ? Pick(numbers, 12) : 0;
    for (size_t s = 0; s < surfaces; ++s) {
      models.at(i).solid().surfaces.Add({static_cast<int>(s) + 1, RandomBox(numbers)});
    }
  }
  for (size_t i = 0; i < count; ++i) {
    if (models.at(i).id.kind == ModelKind::kPart) continue;
    for (size_t c = 1 + Pick(numbers, 6); c > 0; --c) {
      const size_t behind = i + 1 + Pick(numbers, count - i - 1);
      models.Place(models.at(i), models.at(behind), RandomPlacement(numbers));
    }
  }
  return models;
}

// Both trees walked side by side, each pair of models once.
void ExpectSame(const Model& before, const Model& after) {
  std::vector<std::pair<const Model*, const Model*>> pending = {{&before, &after}};
  std::set<std::string> seen;
  for (size_t at = 0; at < pending.size(); ++at) {
    const auto [a, b] = pending[at];
    EXPECT_EQ(a->id.Text(), b->id.Text());
    if (!seen.insert(a->id.Text()).second) continue;
    const auto blocks = BlocksAround(a->solid().surfaces), same = BlocksAround(b->solid().surfaces);
    ASSERT_EQ(blocks.size(), same.size()) << a->id.Text();
    for (size_t i = 0; i < blocks.size(); ++i) {
      EXPECT_EQ(blocks[i].min, same[i].min);
      EXPECT_EQ(blocks[i].max, same[i].max);
    }
    ASSERT_EQ(a->solid().features.size(), b->solid().features.size()) << a->id.Text();
    for (size_t i = 0; i < a->solid().features.size(); ++i) {
      const Feature &from = a->solid().features[i], &to = b->solid().features[i];
      for (size_t k = 0; k < 16; ++k) {
        EXPECT_NEAR(from.component->placement[k / 4][k % 4], to.component->placement[k / 4][k % 4],
                    1e-9);
      }
      pending.emplace_back(from.ComponentModel(), to.ComponentModel());
    }
  }
}

TEST(StepWriter, WhatIsWrittenComesBackAsTheSameTreeAtTheSamePlaces) {
  for (unsigned seed = 0; seed < 20 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const LinkedModels models = RandomAssembly(seed);
    const LinkedModels once = WrittenAndRead(models.top());
    ExpectSame(models.top(), once.top());
    const LinkedModels twice = WrittenAndRead(once.top());
    ExpectSame(once.top(), twice.top());
    EXPECT_EQ(once.size(), twice.size());
  }
}

TEST(StepWriter, LeavesOutWhatTheAssemblyDoesNotShow) {
  LinkedModels models;
  Model& pump = models.Add("pump", ModelKind::kAssembly);
  for (const char* name : {"bolt", "nut", "hidden"}) models.Place(pump, models.Add(name));
  pump.solid().features[1].status = FeatureStatus::kSuppressed;
  pump.solid().features[2].hidden = true;
  pump.solid().features.Add(NewComponent(9, {"missing", ModelKind::kPart}));
  Feature cut;
  cut.id = 10;
  pump.solid().features.Add(cut);
  const ImportedModels read = Imported(StepTextOf(pump, "pump.stp"));
  ASSERT_EQ(read.models.size(), 3u);
  EXPECT_EQ(read.models[1].id.Text() + " " + read.models[2].id.Text(), "bolt.prt hidden.prt");
  EXPECT_TRUE(read.notes.size() == 1 && read.notes[0] == "2 parts have no geometry in the file")
      << Join("|", read.notes);
}

TEST(StepWriter, NamesAreReadByEveryReader) {
  const struct {
    const char *name, *text;
  } cases[] = {{"bolt", "'bolt'"},
               {"it's", "'it''s'"},
               {"螺栓M12", "'\\X2\\87BA6813\\X0\\M12'"},
               {"Ø\n", "'\\X2\\00D8000A\\X0\\'"},
               {"\xF0\x9F\x94\xA9", "'\\X2\\D83DDD29\\X0\\'"}};
  for (const auto& item : cases) {
    LinkedModels models;
    const std::string text = StepTextOf(models.Add(item.name), "x.stp");
    EXPECT_NE(text.find("," + std::string(item.text) + ",'',("), std::string::npos) << text;
    for (const char c : text) EXPECT_LT(static_cast<unsigned char>(c), 0x7F);
    EXPECT_EQ(ReadStepAssembly(StepFile::Parse(text, "x.stp")).models[0].name, item.name);
  }
}

TEST(StepWriter, APartAndAnAssemblyOfOneNameStayTwo) {
  LinkedModels models;
  Model& pump = models.Add("泵", ModelKind::kAssembly);
  Model& part = models.Add("泵");
  for (int i = 0; i < 3; ++i) models.Place(pump, part);
  const std::string text = StepTextOf(pump, "x.stp");
  const ImportedModels read = Imported(text);
  ASSERT_EQ(read.models.size(), 2u);
  EXPECT_EQ(read.models[0].id.Text() + " " + read.models[1].id.Text(), "泵.asm 泵.prt");
  for (const char* identifier :
       {"('\\X2\\6CF5\\X0\\.asm','\\X2\\6CF5\\X0\\',", "('\\X2\\6CF5\\X0\\','\\X2\\6CF5\\X0\\',"}) {
    EXPECT_NE(text.find(identifier), std::string::npos) << identifier;
  }
  EXPECT_EQ(read.models[0].solid().features.size(), 3u);
}

TEST(StepWriter, DepthRestsOnNoStackAndAModelPlacedOftenIsWrittenOnce) {
  constexpr size_t kLevels = 10'000;
  LinkedModels models;
  for (size_t i = 0; i < kLevels; ++i) models.Add("a" + std::to_string(i), ModelKind::kAssembly);
  for (size_t i = 0; i + 1 < kLevels; ++i) {
    for (int twice = 0; twice < 2; ++twice) models.Place(models.at(i), models.at(i + 1));
  }
  const std::string text = StepTextOf(models.top(), "x.stp");
  EXPECT_EQ(Count(text, "=PRODUCT("), kLevels);
}

// Boxes in a plane, as "x0 x1 y0 y1" parted by commas; of the height 0 to `height`.
ItemList<Surface> Surfaces(const std::vector<std::array<double, 4>>& boxes, double height = 1) {
  ItemList<Surface> surfaces;
  for (const auto& b : boxes) {
    surfaces.Add({static_cast<int>(surfaces.size()) + 1, {{b[0], b[2], 0}, {b[1], b[3], height}}});
  }
  return surfaces;
}

TEST(StepBlocks, SurfacesThatTouchAreOneBlock) {
  const struct {
    const char* what;
    std::vector<std::array<double, 4>> boxes;
    size_t blocks;
  } cases[] = {
      {"apart", {{0, 1, 0, 1}, {2, 3, 0, 1}, {0, 1, 2, 3}}, 3},
      {"at a corner", {{0, 1, 0, 1}, {1, 2, 1, 2}}, 1},
      {"nearer than a reader sees", {{0, 1, 0, 1}, {1 + 1e-7, 2, 0, 1}}, 1},
      {"grown over one that was passed", {{0, 10, 0, 1}, {2, 3, 4, 5}, {5, 6, 1, 9}}, 1},
      {"blocks that touch, surfaces that do not", {{0, 8, 0, 1}, {8, 9, 0, 8}, {2, 3, 4, 5}}, 1}};
  for (const auto& item : cases) {
    EXPECT_EQ(BlocksAround(Surfaces(item.boxes)).size(), item.blocks) << item.what;
  }
}

TEST(StepBlocks, FlatOnesAreFacesAndLinesAreNothing) {
  StepRecords records;
  const StepBodies bodies = WriteStepBodies(
      {{{0, 0, 0}, {1, 2, 3}}, {{5, 0, 0}, {5, 2, 3}}, {{7, 0, 0}, {7, 0, 3}}}, records);
  EXPECT_EQ(bodies.solids.size(), 1u);
  EXPECT_EQ(bodies.faces.size(), 1u);
}

// Each edge of a solid is shared by two faces that run along it in opposite ways.
TEST(StepBlocks, ASolidIsClosedAndLooksOutwards) {
  LinkedModels models;
  Model& block = models.Add("block");
  block.solid().surfaces.Add({1, {{0, 0, 0}, {10, 20, 30}}});
  const std::string text = StepTextOf(block, "x.stp");
  std::map<std::string, std::pair<int, int>> uses;
  const std::string start = "=ORIENTED_EDGE('',*,*,#";
  for (size_t at = 0; (at = text.find(start, at)) != std::string::npos;) {
    at += start.size();
    const size_t comma = text.find(',', at);
    auto& [along, against] = uses[text.substr(at, comma - at)];
    ++(text.compare(comma, 4, ",.T.") == 0 ? along : against);
  }
  EXPECT_EQ(uses.size(), 12u);
  for (const auto& [edge, ways] : uses) EXPECT_EQ(ways, std::pair(1, 1)) << edge;
}

}  // namespace
}  // namespace wb
