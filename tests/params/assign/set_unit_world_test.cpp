// All unit systems, both conversions, a part alone and an assembly with repeated models: what each
// model holds afterwards, against its size in millimetres.
#include <set>

#include "tests/plugin_host.h"
#include "workbench/base/text.h"

namespace wb {
namespace {

struct System {
  const char* button;
  const char* name;
  double millimetres;
};
constexpr System kSystems[] = {
    {"mmKs", "millimeter Kilogram Sec (mmKs)", 1},
    {"CGS", "Centimeter Gram Second (CGS)", 10},
    {"mmNs", "Millimeter Newton Second (mmNs)", 1},
    {"MKS", "Meter Kilogram Second (MKS)", 1000},
    {"IPS", "Inch Pound Second (IPS)", 25.4},
    {"FPS", "Foot Pound Second (FPS)", 304.8},
    {"mmgs", "mmgs", 1},
};
constexpr const char* kConversions[] = {"SAME_SIZE", "SAME_DIMS"};
// The systems that models come from, with millimetres of their lengths.
constexpr System kFormer[] = {
    {"", "Millimeter Newton Second (mmNs)", 1},
    {"", "Inch lbm Second (Pro/E Default)", 25.4},
    {"", "workshop", 304.8},
};
constexpr Point kCorner = {3, 5, 7};
constexpr double kDimension = 12;

class UnitUser : public AbsentUser {
 public:
  void WorkDialog(LiveDialog& dialog) override {
    EXPECT_TRUE(dialog.state.UserSelect("UnitRadio", {system}).Done());
    EXPECT_TRUE(dialog.state.UserSelect("OptionRadio", {conversion}).Done());
    EXPECT_TRUE(dialog.Fire("ApplyBt", kActivateEvent));
    dialog.Fire("", kCloseEvent);
  }
  std::string system, conversion;
};

class UnitsWorld : public PluginHost {
 protected:
  UnitsWorld() {
    host_.user = &unit_user_;
    EXPECT_EQ(plugin_.Start(), 0);
    for (const char* const name : {"bolt", "plate", "spare"}) AddPart(name);
    AddAssembly("rotor", {"bolt", "bolt", "plate"});
    AddAssembly("pump", {"rotor", "rotor", "bolt"});
  }
  ~UnitsWorld() override { host_.user = &user_; }

  void AddPart(const char* name) {
    host_.session.Add(Model({name, ModelKind::kPart})).solid().surfaces.Add({1, Box{}});
  }
  void AddAssembly(const char* name, const Lines& components) {
    Model assembly({name, ModelKind::kAssembly});
    for (const std::string& component : components) {
      const bool is_rotor = component == "rotor";
      assembly.solid().features.Add(
          NewComponent(NextId(assembly.solid().features),
                       {component, is_rotor ? ModelKind::kAssembly : ModelKind::kPart}));
    }
    host_.session.Add(std::move(assembly));
  }

  void SetOut(const System& former) {
    for (const auto& model : host_.session.models()) {
      SolidContent& solid = model->solid();
      solid.units = former.name;
      solid.unit_systems = {};
      solid.unit_systems.Add({"workshop", UnitSystemType::kMassLengthTime, "ft"});
      solid.dimensions = {};
      solid.dimensions.Add({1, kDimension});
      for (Surface& surface : solid.surfaces) surface.box = {{0, 0, 0}, kCorner};
      for (Feature& feature : solid.features) {
        feature.component->placement = kIdentityPlacement;
        feature.component->placement[3] = {kCorner[0], kCorner[1], kCorner[2], 1};
      }
    }
  }

  void Show(const char* name, ModelKind kind) {
    Model& model = *host_.session.Find({name, kind});
    host_.session.ActivateWindow(host_.session.ShowInWindow(model).id);
  }

  // All of the model's numbers were multiplied by `factor`.
  static void ExpectScaled(const Model& model, double factor, const std::string& what) {
    const SolidContent& solid = model.solid();
    EXPECT_NEAR(solid.dimensions[0].value, kDimension * factor, 1e-9 * factor) << what;
    for (size_t axis = 0; axis < 3; ++axis) {
      const double wanted = kCorner[axis] * factor;
      for (const Surface& surface : solid.surfaces) {
        EXPECT_NEAR(surface.box.max[axis], wanted, 1e-9 * factor) << what;
      }
      for (const Feature& feature : solid.features) {
        EXPECT_NEAR(feature.component->placement[3][axis], wanted, 1e-9 * factor) << what;
      }
    }
  }

  void ExpectConverted(const System& from, const System& to, const std::set<std::string>& targets) {
    const bool keeps_size = unit_user_.conversion == "SAME_SIZE";
    for (const auto& model : host_.session.models()) {
      const std::string what =
          model->id.Text() + ": " + from.name + " to " + to.name + ", " + unit_user_.conversion;
      const bool is_target = targets.contains(model->id.name);
      EXPECT_EQ(model->solid().units, is_target ? to.name : from.name) << what;
      const bool is_scaled = is_target && keeps_size;
      ExpectScaled(*model, is_scaled ? from.millimetres / to.millimetres : 1, what);
    }
  }

  void ExpectAllConversions(const std::set<std::string>& targets) {
    for (const System& from : kFormer) {
      for (const System& to : kSystems) {
        for (const char* const conversion : kConversions) {
          SetOut(from);
          unit_user_.system = to.button;
          unit_user_.conversion = conversion;
          EXPECT_EQ(RunCommand("SetUnit").status, 0);
          ExpectConverted(from, to, targets);
          EXPECT_EQ(TakeBreaches(), Lines());
          // Nothing changes as the other conversion promises, nor is anything left out.
          EXPECT_EQ(host_.events.AllTexts<Note>(), Lines());
          host_.events = {};
        }
      }
    }
  }

  UnitUser unit_user_;
  Plugin plugin_{Installed().dll()};
};

TEST_F(UnitsWorld, ConvertsAPartAloneAsChosen) {
  Show("bolt", ModelKind::kPart);
  ExpectAllConversions({"bolt"});
}

TEST_F(UnitsWorld, ConvertsAnAssemblyAndEachModelInItOnce) {
  Show("pump", ModelKind::kAssembly);
  ExpectAllConversions({"pump", "rotor", "bolt", "plate"});
}

// Where the units cannot be set, a few parts are measured and not all of them.
TEST_F(UnitsWorld, MeasuresOnlyAFewPartsThatKeepTheirs) {
  for (int i = 0; i < 30; ++i) AddPart(("p" + std::to_string(i)).c_str());
  Lines names;
  for (int i = 0; i < 30; ++i) names.push_back("p" + std::to_string(i));
  AddAssembly("many", names);
  SetOut(kFormer[1]);
  for (const auto& model : host_.session.models()) {
    model->solid().unit_systems.Add({"mmgs", UnitSystemType::kMassLengthTime});
  }
  Show("many", ModelKind::kAssembly);
  unit_user_.system = "mmgs";
  unit_user_.conversion = "SAME_SIZE";
  EXPECT_EQ(RunCommand("SetUnit").status, 0);
  EXPECT_EQ(host_.trace.Counts()["ProSolidSurfaceVisit"], 10);
  EXPECT_EQ(host_.session.Find({"p7", ModelKind::kPart})->solid().units, kFormer[1].name);
}

}  // namespace
}  // namespace wb
