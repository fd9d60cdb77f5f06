// Forty models in all combinations of action, set, class, keywords and typed text: what each holds
// afterwards, against a computation that goes line by line and model by model.
#include <algorithm>
#include <random>
#include <set>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"

namespace wb {
namespace {

constexpr const char* kActions[] = {"AddRels", "AddRelsAndNoRepeat", "CoverRels"};
constexpr const char* kSets[] = {"init", "after"};
constexpr const char* kClasses[] = {"AsmAndPart", "Part", "Asm", "Smt"};
constexpr const char* kKeywords[] = {"", "GB，x", "p1,a1,,"};
constexpr const char* kTexts[] = {"a=1\nb=2\n", "\n\na=1\r\nA=1\n a=1\na=1", "", "c = \"3\"\r\n"};

// What the dialog is set to.
struct Wishes {
  std::string action, set, class_name, keywords, text;
  std::string Text() const {
    return action + " " + set + " " + class_name + " \"" + keywords + "\" \"" + text + "\"";
  }
};

class Relater : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    EXPECT_TRUE(dialog.state.UserSelect("TypeRadio", {wishes.class_name}).Done());
    EXPECT_TRUE(dialog.state.UserSelect("OptionRadio", {wishes.set}).Done());
    EXPECT_TRUE(dialog.state.UserSetField("RelTxtarea", wishes.text).Done());
    EXPECT_TRUE(dialog.state.UserSetField("InputKeyWords", wishes.keywords).Done());
    EXPECT_TRUE(dialog.Fire(wishes.action.c_str(), kActivateEvent));
    dialog.Fire("", kCloseEvent);
  }
  Wishes wishes;
};

// "p3", of each ninth "gb_12": a part of sheet metal if it is a fifth one.
std::string PartNamed(int number) {
  return (number % 9 == 4 ? "gb_" : number % 9 == 5 ? "P" : "p") + std::to_string(number);
}

class RelationsWorld : public PluginHost {
 protected:
  static constexpr int kParts = 30;
  static constexpr int kAssemblies = 9;

  RelationsWorld() {
    host_.user = &relater_;
    EXPECT_EQ(plugin_.Start(), 0);
    for (int i = 0; i < kParts; ++i) {
      Model part({PartNamed(i), ModelKind::kPart});
      part.solid().sheet_metal = i % 5 == 0;
      host_.session.Add(std::move(part));
    }
    Model top({"top", ModelKind::kAssembly});
    for (int i = 0; i < kAssemblies; ++i) {
      Model assembly({"a" + std::to_string(i), ModelKind::kAssembly});
      for (int k = 0; k < 6; ++k) {
        Add(assembly, {PartNamed(Some(kParts)), ModelKind::kPart});
        if (i > 0 && k % 3 == 0)
          Add(assembly, {"a" + std::to_string(Some(i)), ModelKind::kAssembly});
      }
      const ModelName name = assembly.id;
      host_.session.Add(std::move(assembly));
      Add(top, name);
    }
    Model& shown = host_.session.Add(std::move(top));
    host_.session.ActivateWindow(host_.session.ShowInWindow(shown).id);
  }
  ~RelationsWorld() override { host_.user = &user_; }

  int Some(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  // Each seventh component is suppressed.
  void Add(Model& assembly, const ModelName& name) {
    Feature component = NewComponent(NextId(assembly.solid().features), name);
    if (Some(7) == 0) component.status = FeatureStatus::kSuppressed;
    assembly.solid().features.Add(component);
  }

  // Sets of some lines, empty ones, and none.
  std::optional<RelationLines> SomeLines() {
    static const char* const kLines[] = {"a=1", "A=1", "b=2", "d=10", "c = \"3\""};
    if (Some(4) == 0) return std::nullopt;
    RelationLines lines;
    for (int count = Some(4); count > 0; --count) lines.emplace_back(kLines[Some(5)]);
    return lines;
  }
  void SetOut() {
    for (const auto& model : host_.session.models()) {
      model->solid().relations = SomeLines();
      model->solid().post_relations = SomeLines();
    }
  }

  // Models that hold, at any level, what is active; once each.
  void Meet(const Model& assembly, std::set<const Model*>* met) const {
    for (const Feature& feature : assembly.solid().features) {
      const Model* const model = feature.ComponentModel();
      if (feature.status != FeatureStatus::kActive || model == nullptr) continue;
      if (met->insert(model).second && model->id.kind == ModelKind::kAssembly) Meet(*model, met);
    }
  }

  const Wishes& Press(const Wishes& wishes) {
    relater_.wishes = wishes;
    EXPECT_EQ(RunCommand("QmRelations").status, 0);
    EXPECT_EQ(TakeBreaches(), Lines()) << wishes.Text();
    host_.events = {};
    return relater_.wishes;
  }

  std::mt19937 random_{31};
  Relater relater_;
  Plugin plugin_{Installed().dll()};
};

bool IsOfClass(const Model& model, const std::string& class_name) {
  const bool is_part = model.id.kind == ModelKind::kPart;
  if (class_name == "Part") return is_part;
  if (class_name == "Asm") return !is_part;
  return class_name == "AsmAndPart" || (is_part && model.solid().sheet_metal);
}

// The keywords of each list, as one reads them.
bool IsExcluded(const std::string& name, const std::string& keywords) {
  const std::string folded = FoldCase(name);
  if (keywords == "GB，x") return folded.starts_with("gb") || folded.starts_with("x");
  if (keywords == "p1,a1,,") return folded.starts_with("p1") || folded.starts_with("a1");
  return false;
}

RelationLines LinesIn(const std::string& text) {
  RelationLines lines(1);
  for (const char c : text) {
    if (c == '\n') {
      lines.emplace_back();
    } else if (c != '\r') {
      lines.back() += c;
    }
  }
  std::erase(lines, "");
  return lines;
}

std::optional<RelationLines> Wanted(const std::optional<RelationLines>& before,
                                    const Wishes& wishes) {
  const bool covers = wishes.action == "CoverRels";
  // A set is made for an append of ordinary relations alone.
  if (!before && (covers || wishes.set == "after")) return std::nullopt;
  RelationLines lines;
  if (before && !covers) lines = *before;
  for (const std::string& line : LinesIn(wishes.text)) {
    const bool was_there = before && std::ranges::count(*before, line) > 0;
    if (wishes.action == "AddRelsAndNoRepeat" && was_there) continue;
    lines.push_back(line);
  }
  return lines;
}

std::string TextOf(const std::optional<RelationLines>& lines) {
  return lines ? "[" + Join("|", *lines) + "]" : "no set";
}

TEST_F(RelationsWorld, AgreesWithAComputationModelByModelInAllCombinations) {
  std::set<const Model*> met;
  Meet(*host_.session.Current(), &met);
  ASSERT_GT(met.size(), 20u);
  met.insert(host_.session.Current());
  int changed = 0;
  for (int combination = 0; combination < 3 * 2 * 4 * 3 * 4; ++combination) {
    int rest = combination;
    const auto next = [&](int count) {
      const int place = rest % count;
      rest /= count;
      return place;
    };
    const Wishes wishes{kActions[next(3)], kSets[next(2)], kClasses[next(4)], kKeywords[next(3)],
                        kTexts[next(4)]};
    SetOut();
    Lines wanted;
    Lines got;
    for (const auto& model : host_.session.models()) {
      auto [ordinary, post] = std::pair(model->solid().relations, model->solid().post_relations);
      const bool is_target = met.contains(model.get()) && IsOfClass(*model, wishes.class_name) &&
                             !IsExcluded(model->id.name, wishes.keywords);
      auto& chosen = wishes.set == "init" ? ordinary : post;
      if (is_target) chosen = Wanted(chosen, wishes);
      changed += is_target ? 1 : 0;
      wanted.push_back(model->id.Text() + " " + TextOf(ordinary) + TextOf(post));
    }
    Press(wishes);
    for (const auto& model : host_.session.models()) {
      got.push_back(model->id.Text() + " " + TextOf(model->solid().relations) +
                    TextOf(model->solid().post_relations));
    }
    ASSERT_EQ(got, wanted) << wishes.Text();
  }
  EXPECT_GT(changed, 1000);
}

}  // namespace
}  // namespace wb
