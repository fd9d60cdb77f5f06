// Copies and new components, one after another, against names that are counted here.
#include <cstdio>
#include <set>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/windows_headers.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

class CloneWorld : public PluginHost {
 protected:
  CloneWorld() : folder_(Installed().work() / ("clones-" + std::to_string(++number_))) {
    fs::create_directories(folder_);
    host_.session.ChangeDirectory(folder_);
    valve_ = &Add({"valve", ModelKind::kPart});
    sub_ = &Add({"sub", ModelKind::kAssembly});
    start_part_ = &Add({"start", ModelKind::kPart});
    start_assembly_ = &Add({"begin", ModelKind::kAssembly});
    for (Model* const start : {start_part_, start_assembly_}) host_.session.Save(*start);
    host_.options["template_solidpart"] = {PathToUtf8(folder_ / "start.prt")};
    host_.options["template_designasm"] = {PathToUtf8(folder_ / "begin.asm.1")};
    // The tops have no coordinate systems to constrain by.
    for (const wchar_t* const section : {L"PrtAssembly", L"AsmAssembly"}) Set(section, L"0");
    plugin_.Start();
  }
  ~CloneWorld() override {
    plugin_.Stop();
    fs::remove_all(folder_);
  }

  Model& Add(const ModelName& name) {
    Model model(name);
    model.folder = folder_;
    return host_.session.Add(std::move(model));
  }

  // An assembly with the valve (1) and the subassembly (2), in the current window.
  Model& Show(const std::string& name) {
    Model& top = Add({name, ModelKind::kAssembly});
    for (const Model* const model : {valve_, sub_}) {
      Feature& feature =
          top.solid().features.Add(NewComponent(NextId(top.solid().features), model->id));
      feature.component->link.model = const_cast<Model*>(model);
    }
    host_.session.ActivateWindow(host_.session.ShowInWindow(top).id);
    return top;
  }

  static void Set(const wchar_t* section, const wchar_t* value) {
    const fs::path file = Installed().tree() / "QMconfig" / "QmConfig.ini";
    ::WritePrivateProfileStringW(section, L"value", value, file.c_str());
  }

  void Select(Model& top, const Model& model, int id) {
    host_.session.selection_buffer = {
        {static_cast<int>(model.id.kind), 0, const_cast<Model*>(&model), &top, {id}}};
  }

  // The models that a command has brought into session.
  std::vector<std::string> Run(const std::string& command) {
    std::set<std::string> before;
    for (const auto& model : host_.session.models()) before.insert(model->id.Text());
    EXPECT_EQ(RunCommand(command).status, 0);
    EXPECT_EQ(TakeBreaches(), Lines());
    std::vector<std::string> made;
    for (const auto& model : host_.session.models()) {
      if (!before.contains(model->id.Text())) made.push_back(model->id.Text());
    }
    return made;
  }

  // "base" and the number as printf has it.
  static std::string Name(const std::string& base, const char* format, int number,
                          const char* extension) {
    char text[16] = {};
    std::snprintf(text, sizeof(text), format, number);
    return base + text + extension;
  }

  void ExpectNames(const std::string& command, const std::string& base, const char* format,
                   const char* extension) {
    for (int number = 1; number <= kCopies; ++number) {
      const Lines wanted = {Name(base, format, number, extension)};
      ASSERT_EQ(Run(command), wanted) << command;
      ASSERT_TRUE(fs::exists(folder_ / PathFromUtf8(wanted[0] + ".1"))) << wanted[0];
    }
  }

  static constexpr int kCopies = 120;
  static inline int number_ = 0;
  fs::path folder_;
  Model* valve_;
  Model* sub_;
  Model* start_part_;
  Model* start_assembly_;
  Plugin plugin_{Installed().dll()};
};

TEST_F(CloneWorld, EachModeCountsPartsAndAssembliesOn) {
  Model& top = Show("PUMP_00");
  Set(L"CompCopyAutoNum", L"byComp");
  Select(top, *valve_, 1);
  ExpectNames("CloneComp", "valve", "-%d", ".prt");
  Set(L"CompCopyAutoNum", L"byAsm");
  ExpectNames("CloneComp", "PUMP", "-%d", ".prt");
  Select(top, *sub_, 2);
  ExpectNames("CloneComp", "PUMP", "_%02d", ".asm");
  EXPECT_EQ(FeaturesOf(top).size(), 2u + 3u * kCopies);
}

TEST_F(CloneWorld, NewComponentsCountOn) {
  Show("X_000");
  ExpectNames("NewAsm", "X_000", "_%02d", ".asm");
  ExpectNames("NewPart", "X_000", "-%d", ".prt");
}

// Copies of a subassembly are probed as parts: the first name is free for ever, and taken.
TEST_F(CloneWorld, DeliberatelyACopyOfASubassemblyStopsAtItsOwnName) {
  Model& top = Show("top");
  Set(L"CompCopyAutoNum", L"byComp");
  Select(top, *sub_, 2);
  EXPECT_EQ(Run("CloneComp"), Lines{"sub-1.asm"});
  EXPECT_EQ(Run("CloneComp"), Lines());
  EXPECT_EQ(FeaturesOf(top).size(), 3u);
}

struct LongName {
  size_t length;  // of the active assembly
  const char* command;
  bool makes;                // a model
  const char* box;           // "": none
  bool of_assembly = false;  // is cloned
};

// Names of 32 characters pass the limit of new components, and no model can have them.
TEST_F(CloneWorld, NamesEndWhereTheHostsDo) {
  constexpr char kTooLong[] = "新建模型名称长度不能超过32位";
  Set(L"CompCopyAutoNum", L"byAsm");
  for (const wchar_t* const section : {L"AsmAssembly", L"PrtAssembly"}) Set(section, L"0");
  for (const LongName& row : {LongName{29, "NewPart", true, ""},
                              {30, "NewPart", false, ""},
                              {31, "NewPart", false, kTooLong},
                              {28, "NewAsm", true, ""},
                              {29, "NewAsm", false, ""},
                              {30, "NewAsm", false, kTooLong},
                              {29, "CloneComp", true, ""},
                              {30, "CloneComp", false, kTooLong},
                              {28, "CloneComp", true, "", true},
                              {29, "CloneComp", false, kTooLong, true}}) {
    SCOPED_TRACE(row.command + std::to_string(row.length));
    Model& top = Show(std::string(row.length, 'n'));
    Select(top, row.of_assembly ? *sub_ : *valve_, row.of_assembly ? 2 : 1);
    host_.events.Forget<MessageBox>();
    EXPECT_EQ(Run(row.command).size(), row.makes ? 1u : 0u);
    const auto boxes = host_.events.All<MessageBox>();
    ASSERT_EQ(boxes.size(), row.box[0] != '\0' ? 1u : 0u);
    if (!boxes.empty()) {
      EXPECT_EQ(boxes[0].text, row.box);
    }
    EXPECT_EQ(FeaturesOf(top).size(), row.makes ? 3u : 2u);
    host_.session.Erase(top);
  }
}

}  // namespace
}  // namespace wb
