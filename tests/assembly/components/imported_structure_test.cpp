// Counts, boxes and simplified representations of random STEP assemblies whose components are
// turned anyhow, against computations of their own by plain recursion.
#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <random>
#include <set>

#include "tests/plugin_host.h"
#include "tests/workbench/step/step_text_builder.h"
#include "tests/workbench/temporary_folder.h"
#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/base/windows_headers.h"
#include "workbench/script/script_windows.h"
#include "workbench/step/import.h"

namespace wb {
namespace {

namespace fs = std::filesystem;

using Vec = std::array<double, 3>;

Vec Cross(const Vec& a, const Vec& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double Dot(const Vec& a, const Vec& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
Vec Unit(const Vec& a) {
  const double length = std::sqrt(Dot(a, a));
  return {a[0] / length, a[1] / length, a[2] / length};
}

// Axes and origin of a child in its parent.
struct Frame {
  Vec x = {1, 0, 0};
  Vec y = {0, 1, 0};
  Vec z = {0, 0, 1};
  Vec origin{};
  Vec Lead(const Vec& p) const {
    Vec led = origin;
    for (size_t i = 0; i < 3; ++i) led[i] += p[0] * x[i] + p[1] * y[i] + p[2] * z[i];
    return led;
  }
};

struct Use {
  int child;
  Frame frame;
};
struct Cuboid {
  Vec min, max;
};
// Node 0 is the top; children have higher numbers. A node without any is a part.
struct Node {
  std::vector<Use> uses;
  std::vector<Cuboid> faces;
};
using Tree = std::vector<Node>;

class TreeMaker {
 public:
  explicit TreeMaker(unsigned seed) : random_(seed) {}

  Tree Make() {
    const int nodes = 4 + static_cast<int>(random_() % 12);
    Tree tree(static_cast<size_t>(nodes));
    for (int node = 0; node + 1 < nodes; ++node) {
      const unsigned children = node == 0 ? 4 : random_() % 2 == 0 ? 0 : random_() % 4;
      for (unsigned i = 0; i < children; ++i) {
        const auto others = static_cast<unsigned>(nodes - node - 1);
        const int child = node + 1 + static_cast<int>(random_() % others);
        tree[static_cast<size_t>(node)].uses.push_back({child, AnyFrame()});
      }
    }
    for (Node& node : tree) {
      if (!node.uses.empty()) continue;
      for (unsigned face = random_() % 3; face-- > 0;) node.faces.push_back(AnyCuboid());
    }
    return tree;
  }
  unsigned Next() { return static_cast<unsigned>(random_()); }

 private:
  double Number(double most) {
    return std::uniform_real_distribution<double>(-most, most)(random_);
  }
  Vec AnyVec(double most) { return {Number(most), Number(most), Number(most)}; }
  Frame AnyFrame() {
    Frame frame;
    frame.z = Unit(AnyVec(1));
    frame.y = Unit(Cross(frame.z, AnyVec(1)));
    frame.x = Cross(frame.y, frame.z);
    frame.origin = AnyVec(300);
    return frame;
  }
  Cuboid AnyCuboid() {
    const Vec a = AnyVec(50), b = AnyVec(50);
    Cuboid cuboid;
    for (size_t i = 0; i < 3; ++i) {
      cuboid.min[i] = std::min(a[i], b[i]);
      cuboid.max[i] = std::max(a[i], b[i]);
    }
    return cuboid;
  }

  std::mt19937 random_;
};

std::string NameOf(int node) {
  return node == 0 ? "top" : "n" + std::to_string(node);
}

std::string Numbers(const Vec& v) {
  char text[120];
  std::snprintf(text, sizeof(text), "%.17f,%.17f,%.17f", v[0], v[1], v[2]);
  return text;
}

std::string StepText(const Tree& tree) {
  StepTextBuilder step;
  const int context = step.Metric(".MILLI.");
  const int from = step.Axis("0.,0.,0.");
  std::vector<StepTextBuilder::Part> products;
  std::vector<std::vector<int>> targets;
  for (const Node& node : tree) {
    std::vector<int> items = {from};
    std::vector<int>& axes = targets.emplace_back();
    for (const Use& use : node.uses) {
      axes.push_back(
          step.Axis(Numbers(use.frame.origin), Numbers(use.frame.z), Numbers(use.frame.x)));
      items.push_back(axes.back());
    }
    products.push_back(step.Product(NameOf(static_cast<int>(products.size())), items, context));
  }
  for (size_t node = 0; node < tree.size(); ++node) {
    for (size_t i = 0; i < tree[node].uses.size(); ++i) {
      const auto& child = products[static_cast<size_t>(tree[node].uses[i].child)];
      const int usage = step.Usage(products[node], child, "place " + std::to_string(i));
      step.Place(usage, child.representation, products[node].representation, from,
                 targets[node][i]);
    }
  }
  return step.Text();
}

using Path = std::vector<size_t>;  // of places in the parents' uses

// Everything again, by recursion.
class Recount {
 public:
  explicit Recount(const Tree& tree) : tree_(tree) { Enter(0, {}, {}); }

  std::map<int, int> counts;                // by node
  std::vector<std::pair<Path, int>> paths;  // of all occurrences, with their nodes

  // The sizes of the box around the occurrences under any of `selected`; none without faces.
  std::optional<Vec> Sizes(const std::set<Path>& selected) const {
    Vec low = {1e30, 1e30, 1e30}, high = {-1e30, -1e30, -1e30};
    for (const auto& [path, points] : corners_) {
      if (!IsUnder(selected, path)) continue;
      for (const Vec& point : points) {
        for (size_t i = 0; i < 3; ++i) {
          low[i] = std::min(low[i], point[i]);
          high[i] = std::max(high[i], point[i]);
        }
      }
    }
    if (low[0] > high[0]) return std::nullopt;
    return Vec{high[0] - low[0], high[1] - low[1], high[2] - low[2]};
  }

  static bool IsUnder(const std::set<Path>& selected, const Path& path) {
    return std::ranges::any_of(selected, [&](const Path& above) {
      return above.size() <= path.size() && std::equal(above.begin(), above.end(), path.begin());
    });
  }

 private:
  void Enter(int node, const Path& path, const std::vector<const Frame*>& frames) {
    const Node& at = tree_[static_cast<size_t>(node)];
    for (const Cuboid& face : at.faces) {
      for (unsigned corner = 0; corner < 8; ++corner) {
        Vec point;
        for (size_t i = 0; i < 3; ++i) point[i] = (corner >> i & 1) ? face.max[i] : face.min[i];
        for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame) {
          point = (*frame)->Lead(point);
        }
        corners_[path].push_back(point);
      }
    }
    for (size_t i = 0; i < at.uses.size(); ++i) {
      Path below = path;
      below.push_back(i);
      std::vector<const Frame*> with = frames;
      with.push_back(&at.uses[i].frame);
      ++counts[at.uses[i].child];
      paths.emplace_back(below, at.uses[i].child);
      Enter(at.uses[i].child, below, with);
    }
  }

  const Tree& tree_;
  std::map<Path, std::vector<Vec>> corners_;
};

class ImportedStructure : public PluginHost {
 protected:
  ImportedStructure() {
    host_.session.ChangeDirectory(folder_);
    host_.user = &answering_;
    EXPECT_TRUE(::WritePrivateProfileStringW(L"QmOutlineNum", L"content", L"6", settings_.c_str()));
    EXPECT_TRUE(
        ::WritePrivateProfileStringW(L"QmOutlineOrder", L"content", L"0", settings_.c_str()));
    EXPECT_EQ(plugin_.Start(), 0);
  }
  // Other tests of this process use the same settings.
  ~ImportedStructure() override {
    host_.user = &user_;
    FlushProfile(settings_);
    std::ofstream(settings_, std::ios::binary | std::ios::trunc) << settings_before_;
  }

  void Open(const Tree& tree) {
    const fs::path step = folder_ / "top.stp";
    std::ofstream(step, std::ios::binary) << StepText(tree);
    WriteModels(ReadStepModels(step), folder_, true);
    top_ = host_.session.Retrieve({"top", ModelKind::kAssembly});
    ASSERT_NE(top_, nullptr);
    host_.session.ActivateWindow(host_.session.ShowInWindow(*top_).id);
    for (size_t node = 1; node < tree.size(); ++node) {
      for (const Cuboid& face : tree[node].faces) {
        Model* const part = host_.session.Find({NameOf(static_cast<int>(node)), ModelKind::kPart});
        if (part == nullptr) continue;  // placed nowhere
        ItemList<Surface>& surfaces = part->solid().surfaces;
        surfaces.Add({NextId(surfaces), Box{face.min, face.max}});
      }
    }
  }
  void EraseAll() {
    while (!host_.session.models().empty()) host_.session.Erase(*host_.session.models().front());
  }

  std::vector<int> IdsOf(const Path& path, Model** end) const {
    std::vector<int> ids;
    *end = top_;
    for (const size_t place : path) {
      Feature& feature = (*end)->solid().features[place];
      ids.push_back(feature.id);
      *end = feature.ComponentModel();
    }
    return ids;
  }
  void Select(const std::set<Path>& paths) {
    host_.session.selection_buffer.clear();
    for (const Path& path : paths) {
      Model* end = nullptr;
      const std::vector<int> ids = IdsOf(path, &end);
      host_.session.selection_buffer.push_back({static_cast<int>(end->id.kind), 0, end, top_, ids});
    }
  }

  void CheckCounts(const Recount& recount) {
    EXPECT_EQ(RunCommand("QmMdlCount").status, 0);
    for (const auto& [node, count] : recount.counts) {
      Model* model = host_.session.Find({NameOf(node), ModelKind::kPart});
      if (model == nullptr) model = host_.session.Find({NameOf(node), ModelKind::kAssembly});
      ASSERT_NE(model, nullptr) << NameOf(node);
      const Parameter* const parameter = model->FindParameter("数量");
      ASSERT_NE(parameter, nullptr) << NameOf(node);
      EXPECT_EQ(ParameterText(parameter->value), std::to_string(count)) << NameOf(node);
    }
  }

  // True when there was a box.
  bool CheckBox(const Recount& recount, const std::set<Path>& selected) {
    SetClipboardText("before");
    Select(selected);
    EXPECT_EQ(RunCommand("QmBox").status, 0);
    const std::string text = ClipboardText().value_or("");
    const auto sizes = recount.Sizes(selected.empty() ? std::set<Path>{{}} : selected);
    if (!sizes) {
      EXPECT_EQ(text, "before");
      return false;
    }
    Vec got{};
    EXPECT_EQ(std::sscanf(text.c_str(), "%lf×%lf×%lf", &got[0], &got[1], &got[2]), 3) << text;
    for (size_t i = 0; i < 3; ++i) EXPECT_NEAR(got[i], (*sizes)[i], 2e-6) << text;
    return true;
  }

  void CheckRep(const Recount& recount, const std::set<Path>& selected) {
    Select(selected);
    EXPECT_EQ(RunCommand("QmSimRep").status, 0);
    const SimplifiedRep* const rep = top_->solid().reps.Find(FoldCase(answering_.name));
    ASSERT_NE(rep, nullptr);
    EXPECT_EQ(top_->solid().active_rep, answering_.name);
    std::set<std::vector<int>> left_out;
    for (const RepItem& item : rep->items) {
      EXPECT_EQ(item.action, RepAction::kExclude);
      std::vector<int> ids = item.path;
      ids.push_back(item.component);
      left_out.insert(ids);
    }
    for (const auto& [path, node] : recount.paths) {
      bool is_kept = Recount::IsUnder(selected, path);
      // Or above one that is.
      for (const Path& below : selected) is_kept = is_kept || Recount::IsUnder({path}, below);
      Model* end = nullptr;
      std::vector<int> ids = IdsOf(path, &end);
      bool is_left_out = false;
      for (; !ids.empty(); ids.pop_back()) is_left_out = is_left_out || left_out.contains(ids);
      EXPECT_EQ(is_kept, !is_left_out);
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

  const fs::path settings_ = Installed().tree() / "QMconfig" / "QmParams.ini";
  const std::string settings_before_ = ReadFileBytes(settings_).value_or("");
  const TemporaryFolder temporary_{"workbench imported structure"};
  const fs::path& folder_ = temporary_.path;
  Namer answering_;
  Plugin plugin_{Installed().dll()};
  Model* top_ = nullptr;
};

TEST_F(ImportedStructure, AgreesWithCountsBoxesAndRepresentationsOfItsOwn) {
  int boxes = 0;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    TreeMaker maker(seed);
    const Tree tree = maker.Make();
    ASSERT_NO_FATAL_FAILURE(Open(tree));
    const Recount recount(tree);
    ASSERT_NO_FATAL_FAILURE(CheckCounts(recount));
    boxes += CheckBox(recount, {}) ? 1 : 0;
    for (int round = 0; round < 3; ++round) {
      std::set<Path> selected;
      for (int i = 0; i <= round; ++i) {
        selected.insert(recount.paths[maker.Next() % recount.paths.size()].first);
      }
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
