// Facts of models: written and read back whole, compared, found by path; and what a file may not
// say.
#include "workbench/session/model_facts.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/workbench/temporary_folder.h"
#include "workbench/session/model_file.h"

namespace wb {
namespace {

using Lines = std::vector<std::string>;

Model Pump() {
  Model pump({"pump", ModelKind::kAssembly});
  pump.note = "a note";
  pump.SetParameter("材料", std::string("Q235"));
  pump.SetParameter("MASS", 2.0);
  pump.SetParameter("COUNT", 3);
  pump.SetParameter("BOUGHT", true);
  SolidContent& solid = pump.solid();
  solid.skeleton = true;
  Placement placement = kIdentityPlacement;
  placement[3] = {1, 2.5, -3, 1};
  solid.features.Add(NewComponent(7, {"bolt", ModelKind::kPart}, placement));
  solid.features.Add({.id = 9,
                      .type = 923,
                      .status = FeatureStatus::kSuppressed,
                      .visible = false,
                      .status_flags = 5,
                      .hidden = true});
  solid.surfaces.Add({4, {{0, 0, 0}, {1, 2, 3}}});
  return pump;
}

Model PumpDrawing() {
  Model drawing({"pump", ModelKind::kDrawing});
  auto& content = *drawing.As<DrawingContent>();
  content.shows = ModelLink{{"pump", ModelKind::kAssembly}};
  content.models = {{*content.shows}, {ModelLink{{"bolt", ModelKind::kPart}}}};
  content.current_sheet = 2;
  content.template_errors = 3;
  content.sheets = {{"A3", 0.5}, {"A4", 1.0}};
  Sheet& sheet = content.sheets[0];
  sheet.scales.Add({"bolt.prt", 2});
  sheet.transform[3][0] = 5;
  sheet.format = "frame.frm";
  sheet.format_sheet = 2;
  sheet.format_shown = false;
  DrawingView view = {.id = 7, .kind = ViewKind::kProjection, .sheet = 2, .parent = 3};
  view.shows = ModelLink{{"bolt", ModelKind::kPart}};
  view.side = ViewSide::kBelow;
  view.orientation = {{{1, 0, 0}, {0, 0, 1}, {0, -1, 0}}};
  view.own_scale = view.exploded = true;
  view.scale = 0.25;
  view.place = {10, 20};
  view.display = {DisplayStyle::kNoHidden, true, 15, 1, true, true};
  view.outline = {1, 2, 3, 4};
  content.views.Add(view);
  content.tables.Add({4, "frame.frm", {1, 2}, {30, 40}, {5, 6}, {7}, {{1, 2, "图号"}}});
  content.dimensions.Add(
      {5, 2, 7, {1, 2}, 12.5, "@D\n深", ToleranceType::kPlusMinus, 0.1, 0.2, 1, true});
  content.notes.Add({6, 2, {3, 4}, "未注倒角 C1"});
  return drawing;
}

Lines Described(const std::vector<FactChange>& changes) {
  Lines lines;
  for (const FactChange& change : changes) {
    lines.push_back(change.path + ": " + change.before.value_or("-") + " to " +
                    change.after.value_or("-"));
  }
  return lines;
}

class ModelFacts : public testing::Test {
 protected:
  Model Reread(const Model& model) const {
    const auto file = temporary_.path / "model.1";
    WriteModelFile(model, file);
    return ReadModelFile(file);
  }
  std::string ErrorOf(const std::string& document) const {
    const auto file = temporary_.path / "broken.prt.1";
    std::ofstream(file, std::ios::binary) << document;
    try {
      ReadModelFile(file);
    } catch (const ModelFileError& error) {
      std::string text = error.what();
      const std::string name = "broken.prt.1: ";
      text.erase(0, text.find(name) + name.size());
      return text.substr(0, text.find("; mend"));
    }
    return "read";
  }

  const TemporaryFolder temporary_{"quillmax model facts test"};
};

TEST_F(ModelFacts, AFileHoldsThemAll) {
  const Model pump = Pump();
  EXPECT_EQ(Described(ChangesBetween(pump, Reread(pump))), Lines());

  const Model drawing = PumpDrawing();
  EXPECT_EQ(Described(ChangesBetween(drawing, Reread(drawing))), Lines());
  // Nothing of it is what a new drawing has by itself.
  EXPECT_EQ(Described(ChangesBetween(Model(drawing.id), drawing)).size(), 11u);

  Model format({"frame", ModelKind::kFormat});
  format.As<FormatContent>()->sheets = {{"A3", {}}};
  format.As<FormatContent>()->sheets[0].tables.Add({.id = 4, .cells = {{2, 1, "比例"}}});
  EXPECT_EQ(Described(ChangesBetween(format, Reread(format))), Lines());

  Model mill({"mill", ModelKind::kManufacturing});
  mill.As<ManufacturingContent>()->assembly = ModelLink{{"pump", ModelKind::kAssembly}};
  EXPECT_EQ(Described(ChangesBetween(mill, Reread(mill))), Lines());
}

TEST_F(ModelFacts, EveryDifferenceIsToldByItsPath) {
  const Model before = Pump();
  Model after = Pump();
  after.note.clear();
  after.SetParameter("mass", 2.5);
  after.DeleteParameter("COUNT");
  SolidContent& solid = after.solid();
  solid.features.Find(7)->hidden = true;
  solid.features.Find(7)->component->placement[3][0] = 9;
  solid.features.Remove(9);
  solid.features.Add({.id = 12, .type = 911});
  solid.surfaces.Find(4)->box.max[2] = 8;
  EXPECT_EQ(Described(ChangesBetween(before, after)),
            (Lines{"note: a note to ", "parameters/mass/value: 2 to 2.5",
                   "parameters/count: name COUNT, type integer, value 3 to -",
                   "features/7/hidden: no to yes",
                   "features/7/placement: 1 0 0 0 0 1 0 0 0 0 1 0 1 2.5 -3 1 to "
                   "1 0 0 0 0 1 0 0 0 0 1 0 9 2.5 -3 1",
                   "features/9: id 9, type 923, status suppressed, visible no, flags 5, hidden yes "
                   "to -",
                   "features/12: - to id 12, type 911", "surfaces/4/max: 1 2 3 to 1 2 8"}));
}

TEST_F(ModelFacts, AreFoundAndSetByPath) {
  Model pump = Pump();
  const auto set = [&](const char* path, const char* text) {
    const FactPlace place = FindFact(pump, path);
    place.row->set(place.record, ParseFact(text, place.row->get(place.record)));
    return FactText(place.row->get(place.record));
  };
  EXPECT_EQ(set("parameters/材料/value", "Q345"), "Q345");
  EXPECT_EQ(set("surfaces/4/min", "-1 0 0.5"), "-1 0 0.5");
  const struct {
    const char* path;
    const char* text;
    const char* why;
  } cases[] = {
      {"features/9/hidden", "1", "\"1\" is neither yes nor no"},
      {"features/7/model", "bolt", "\"bolt\" instead of a model name such as"},
      {"features/8/hidden", "yes", "pump.asm: there is no features/8"},
      {"smell", "red",
       "pump.asm: there is no fact \"smell\"; there are: note, view, parameters/..., "},
  };
  for (const auto& item : cases) {
    try {
      set(item.path, item.text);
      ADD_FAILURE() << item.path << " " << item.text;
    } catch (const FactError& error) {
      EXPECT_EQ(std::string(error.what()).find(item.why), 0u) << error.what();
    }
  }
}

TEST_F(ModelFacts, ItemsAreAddedByTheirPath) {
  using Pairs = std::vector<std::pair<std::string, std::string>>;
  Model drawing({"pump", ModelKind::kDrawing});
  const auto add = [&](const char* path, const Pairs& facts) {
    try {
      AddItem(drawing, path, facts);
      return std::string("added");
    } catch (const FactError& error) {
      return std::string(error.what());
    }
  };
  EXPECT_EQ(add("sheets", {{"size", "A3"}}), "added");
  EXPECT_EQ(add("sheets/1/scales/Bolt.prt", {{"scale", "0.1"}}), "added");
  EXPECT_EQ(add("dimensions/5", {{"value", "3"}, {"tolerance", "limits"}}), "added");
  EXPECT_EQ(FactText(FindFact(drawing, "sheets/1/scales/bolt.PRT/scale")
                         .row->get(FindFact(drawing, "sheets/1/scales/bolt.prt/scale").record)),
            "0.1");
  EXPECT_EQ(CountItems(drawing, "sheets/1/scales"), 1u);
  EXPECT_EQ(add("dimensions/5", {}), "pump.drw: 5 occurs twice");
  EXPECT_EQ(add("dimensions", {}), "pump.drw: items of dimensions are told by their id");
  EXPECT_EQ(add("sheets/2", {}), "pump.drw: items of sheets have no key");
  EXPECT_EQ(add("sheets/2/scales/a.prt", {}), "pump.drw: there is no sheets/2");
  EXPECT_EQ(add("views/x", {}), "pump.drw: \"x\" is no whole number");
  EXPECT_EQ(add("dimensions/6", {{"vlaue", "3"}}).find("pump.drw: there is no fact \"vlaue\""), 0u);
  EXPECT_EQ(CountItems(drawing, "dimensions"), 1u);
}

TEST_F(ModelFacts, NumbersAgreeThatDifferByRounding) {
  EXPECT_TRUE(IsFact(0.1 + 0.2, "0.3"));
  EXPECT_FALSE(IsFact(0.3001, "0.3"));
  EXPECT_TRUE(IsFact(std::vector<double>{1 + 1e-12, 1000}, "1 1000"));
  EXPECT_FALSE(IsFact(std::vector<double>{1, 1000}, "1"));
  EXPECT_FALSE(IsFact(std::vector<double>{1}, "none"));
}

TEST_F(ModelFacts, FilesOfTheFirstFormatAreRead) {
  EXPECT_EQ(ErrorOf(R"({"format": 1, "model": "broken.prt", "features": [
    {"id": 3, "type": 911, "hidden": true}], "surfaces": [[[0,0,0],[1,2,3]], [[4,0,0],[5,2,3]]]})"),
            "read");
  const Model bolt = ReadModelFile(temporary_.path / "broken.prt.1");
  EXPECT_EQ(bolt.solid().surfaces.Find(2)->box.min[0], 4);
}

TEST_F(ModelFacts, WhatAFileMayNotSayIsToldWithItsLine) {
  const struct {
    const char* rest;  // from line 4 on
    const char* why;
  } cases[] = {
      {"\"note\": 5", "line 4: \"note\": \"5\" instead of a text"},
      {"\"features\": [\n {\"id\": 1, \"type\": 5},\n {\"id\": 2, \"type\": 5, \"hiden\": true}]",
       "line 6: unknown entry \"hiden\""},
      {"\"features\": [\n {\"id\": 1, \"type\": 5},\n {\"id\": 1, \"type\": 6}]",
       "line 6: features: 1 occurs twice"},
      {"\"features\": [\n {\"type\": 5}]", "line 5: \"id\" is missing"},
      {"\"features\": [\n {\"id\": 5, \"type\": 911, \"model\": \"a.prt\"}]",
       "line 5: a feature of type 911 has neither \"model\" nor \"placement\""},
      {"\"features\": [\n {\"id\": 1, \"type\": 5,\n \"status\": \"asleep\"}]",
       "line 6: \"status\": \"asleep\" instead of one of active, inactive, "
       "family_table_suppressed, "
       "simplified_rep_suppressed, program_suppressed, suppressed, unregenerated"},
      {"\"features\": {}", "line 4: \"features\" is no list"},
      {"\"parameters\": [\n {\"name\": \"A\", \"type\": \"real\", \"value\": \"x\"}]",
       "line 5: \"value\": \"x\" instead of a number"},
      {"\"surfaces\": [[1, 2]]", "line 4: \"min\": \"1\" instead of 3 numbers"},
      {"\"sheet_metal\" true", "line 4: not valid JSON"},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(ErrorOf("{\n \"format\": 1,\n \"model\": \"broken.prt\",\n " +
                      std::string(item.rest) + "}"),
              item.why);
  }
  EXPECT_EQ(ErrorOf("{\"format\": 4294967298, \"model\": \"a.prt\"}"),
            "line 1: unknown format number 4294967298 (1 to 2 are known)");
  EXPECT_EQ(ErrorOf("{\"format\": 2,\n\"model\": 5}"),
            "line 2: \"5\" is no model name such as \"bolt.prt\"");
  // Each look for the model would read it again.
  EXPECT_EQ(ErrorOf("{\"format\": 2,\n\"model\": \"nut.prt\"}"),
            "line 2: the file holds the model nut.prt, not broken.prt as its name says");
  EXPECT_EQ(ErrorOf("{\"format\": 2, \"model\": \"broken.prt\", \"note\": 1e999}"),
            "it holds a number that is too large");
  EXPECT_EQ(ErrorOf("{\"format\": 2, \"model\": \"broken.prt\",\n\"features\": [{\"id\": "
                    "18446744073709551615}]}"),
            "line 2: \"id\": \"18446744073709551616\" instead of a whole number");
  // In a text brackets open nothing.
  const std::string deep(100'000, '[');
  EXPECT_EQ(ErrorOf("{\"format\":\n" + deep), "line 2: entries are nested more than 32 deep");
  EXPECT_EQ(ErrorOf("{\"format\": 2, \"model\": \"broken.prt\", \"note\": \"\\\"" + deep + "\"}"),
            "read");
}

}  // namespace
}  // namespace wb
