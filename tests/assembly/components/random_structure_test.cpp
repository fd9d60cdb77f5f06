// Counts, boxes and simplified representations of random assemblies whose components are turned
// anyhow, against computations of their own by plain recursion.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <random>
#include <set>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/script/script_windows.h"
#include "workbench/session/extents.h"

namespace wb {
namespace {

using Path = std::vector<int>;  // of components' ids, from the top down

bool IsUnder(const std::set<Path>& selected, const Path& path) {
  return std::ranges::any_of(selected, [&](const Path& above) {
    return above.size() <= path.size() && std::equal(above.begin(), above.end(), path.begin());
  });
}

// Everything again, by recursion.
class Recounted {
 public:
  explicit Recounted(Model& top) { Enter(top, {}, {}); }

  std::map<Model*, int> counts;
  std::vector<std::pair<Path, Model*>> occurrences;

  // The sizes of the box around the occurrences under any of `selected`; none without surfaces.
  std::optional<Point> Sizes(const std::set<Path>& selected) const {
    Point low = {1e30, 1e30, 1e30};
    Point high = {-1e30, -1e30, -1e30};
    for (const auto& [path, point] : corners_) {
      if (!IsUnder(selected, path)) continue;
      for (size_t i = 0; i < 3; ++i) {
        low[i] = std::min(low[i], point[i]);
        high[i] = std::max(high[i], point[i]);
      }
    }
    if (low[0] > high[0]) return std::nullopt;
    return Point{high[0] - low[0], high[1] - low[1], high[2] - low[2]};
  }

 private:
  void Enter(Model& model, const Path& path, const std::vector<Placement>& placements) {
    for (const Surface& surface : model.solid().surfaces) {
      for (unsigned corner = 0; corner < 8; ++corner) {
        Point point;
        for (size_t i = 0; i < 3; ++i) {
          point[i] = (corner >> i & 1) ? surface.box.max[i] : surface.box.min[i];
        }
        for (auto at = placements.rbegin(); at != placements.rend(); ++at) {
          point = PlacedAt(point, *at);
        }
        corners_.emplace_back(path, point);
      }
    }
    for (const Feature& feature : model.solid().features) {
      Path below = path;
      below.push_back(feature.id);
      std::vector<Placement> within = placements;
      within.push_back(feature.component->placement);
      Model* const child = feature.ComponentModel();
      ++counts[child];
      occurrences.emplace_back(below, child);
      Enter(*child, below, within);
    }
  }

  std::vector<std::pair<Path, Point>> corners_;
};

class RandomStructure : public PluginHost {
 protected:
  RandomStructure() {
    host_.user = &answering_;
    EXPECT_TRUE(WriteProfile(settings_, "QmOutlineNum", "content", "6"));
    EXPECT_TRUE(WriteProfile(settings_, "QmOutlineOrder", "content", "0"));
    EXPECT_EQ(plugin_.Start(), 0);
  }
  // Other tests of this process use the same settings.
  ~RandomStructure() override {
    host_.user = &user_;
    FlushProfile(settings_);
    std::ofstream(settings_, std::ios::binary | std::ios::trunc) << settings_before_;
  }

  // Models of higher numbers are used by those of lower ones; one that uses none is a part.
  void Open(unsigned seed) {
    random_.seed(seed);
    std::vector<ModelName> names;
    for (size_t left = 4 + random_() % 12; left-- > 0;) {
      const size_t others = names.size();
      const size_t uses = others == 0 || random_() % 3 == 0 ? 0 : 1 + random_() % 3;
      const size_t components = left == 0 ? 4 : uses;
      Model model(
          {"n" + std::to_string(left), components == 0 ? ModelKind::kPart : ModelKind::kAssembly});
      for (size_t i = 0; i < components; ++i) {
        const ModelName& used = names[random_() % others];
        model.solid().features.Add(NewComponent(static_cast<int>(i) + 1, used, AnyPlacement()));
      }
      if (components == 0) AddSurfaces(model);
      names.push_back({"n" + std::to_string(left), model.id.kind});
      top_ = &host_.session.Add(std::move(model));
    }
    host_.session.ActivateWindow(host_.session.ShowInWindow(*top_).id);
  }
  void EraseAll() {
    while (!host_.session.models().empty()) host_.session.Erase(*host_.session.models().front());
  }
  std::set<Path> AnyOf(const Recounted& recount, int most) {
    std::set<Path> paths;
    for (int i = 0; i < most; ++i) {
      paths.insert(recount.occurrences[random_() % recount.occurrences.size()].first);
    }
    return paths;
  }
  void Select(const Recounted& recount, const std::set<Path>& paths) {
    host_.session.selection_buffer.clear();
    for (const auto& [path, model] : recount.occurrences) {
      if (!paths.contains(path)) continue;
      const int type = static_cast<int>(model->id.kind);
      host_.session.selection_buffer.push_back({type, 0, model, top_, path});
    }
  }

  void CheckCounts(const Recounted& recount) {
    EXPECT_EQ(RunCommand("QmMdlCount").status, 0);
    for (const auto& [model, count] : recount.counts) {
      const Parameter* const parameter = model->FindParameter("数量");
      ASSERT_NE(parameter, nullptr) << model->id.Text();
      EXPECT_EQ(ParameterText(parameter->value), std::to_string(count)) << model->id.Text();
    }
  }

  // True when there was a box.
  bool CheckBox(const Recounted& recount, const std::set<Path>& selected) {
    SetClipboardText("before");
    Select(recount, selected);
    EXPECT_EQ(RunCommand("QmBox").status, 0);
    const std::string text = ClipboardText().value_or("");
    const auto sizes = recount.Sizes(selected.empty() ? std::set<Path>{{}} : selected);
    if (!sizes) {
      EXPECT_EQ(text, "before");
      return false;
    }
    Point got{};
    EXPECT_EQ(std::sscanf(text.c_str(), "%lf×%lf×%lf", &got[0], &got[1], &got[2]), 3) << text;
    for (size_t i = 0; i < 3; ++i) EXPECT_NEAR(got[i], (*sizes)[i], 2e-6) << text;
    return true;
  }

  void CheckRep(const Recounted& recount, const std::set<Path>& selected) {
    Select(recount, selected);
    EXPECT_EQ(RunCommand("QmSimRep").status, 0);
    const SimplifiedRep* const rep = top_->solid().reps.Find(FoldCase(answering_.name));
    ASSERT_NE(rep, nullptr);
    EXPECT_EQ(top_->solid().active_rep, answering_.name);
    std::set<Path> left_out;
    for (const RepItem& item : rep->items) {
      EXPECT_EQ(item.action, RepAction::kExclude);
      Path path = item.path;
      path.push_back(item.component);
      left_out.insert(path);
    }
    for (const auto& [path, model] : recount.occurrences) {
      bool is_kept = IsUnder(selected, path);
      // Or above one that is.
      for (const Path& below : selected) is_kept = is_kept || IsUnder({path}, below);
      EXPECT_EQ(is_kept, !IsUnder(left_out, path));
    }
  }

  // Takes a new name each time.
  struct Namer : AbsentUser {
    std::optional<std::string> AnswerPrompt(const std::string&, int) override {
      return name = "REP" + std::to_string(++number);
    }
    int number = 0;
    std::string name;
  };

 private:
  double Number(double most) {
    return std::uniform_real_distribution<double>(-most, most)(random_);
  }
  // Turned about z, then about x.
  Placement AnyPlacement() {
    const double a = Number(3);
    const double b = Number(3);
    return {{{std::cos(a), std::sin(a) * std::cos(b), std::sin(a) * std::sin(b), 0},
             {-std::sin(a), std::cos(a) * std::cos(b), std::cos(a) * std::sin(b), 0},
             {0, -std::sin(b), std::cos(b), 0},
             {Number(300), Number(300), Number(300), 1}}};
  }
  void AddSurfaces(Model& part) {
    ItemList<Surface>& surfaces = part.solid().surfaces;
    for (unsigned left = random_() % 4; left > 0; --left) {
      Box box;
      for (size_t i = 0; i < 3; ++i) {
        const auto [low, high] = std::minmax({Number(50), Number(50)});
        box.min[i] = low;
        box.max[i] = high;
      }
      surfaces.Add({NextId(surfaces), box});
    }
  }

  const std::filesystem::path settings_ = Installed().tree() / "QMconfig" / "QmParams.ini";
  const std::string settings_before_ = ReadFileBytes(settings_).value_or("");
  std::mt19937 random_;
  Namer answering_;
  Plugin plugin_{Installed().dll()};

 protected:
  Model* top_ = nullptr;
};

TEST_F(RandomStructure, AgreesWithCountsBoxesAndRepresentationsOfItsOwn) {
  int boxes = 0;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    Open(seed);
    const Recounted recount(*top_);
    ASSERT_NO_FATAL_FAILURE(CheckCounts(recount));
    boxes += CheckBox(recount, {}) ? 1 : 0;
    for (int most = 1; most <= 3; ++most) {
      const std::set<Path> selected = AnyOf(recount, most);
      boxes += CheckBox(recount, selected) ? 1 : 0;
      ASSERT_NO_FATAL_FAILURE(CheckRep(recount, selected));
    }
    EraseAll();
  }
  EXPECT_GT(boxes, 30);
  EXPECT_EQ(TakeBreaches(), Lines());
}

}  // namespace
}  // namespace wb
