// Statements that make models, bring them into session and show them.
#include <functional>

#include "workbench/base/text.h"
#include "workbench/base/utf8_text.h"
#include "workbench/language/script_words.h"
#include "workbench/reasons/missing_model.h"
#include "workbench/reasons/own_path.h"
#include "workbench/script/script_arguments.h"
#include "workbench/script/script_paths.h"
#include "workbench/script/script_runner.h"
#include "workbench/session/model_cycle.h"
#include "workbench/shapes/bench_shapes.h"
#include "workbench/statements/statement_families.h"
#include "workbench/step/import.h"

namespace wb {
namespace {

Model NewModel(const ScriptRun& run, const std::string& name, ModelKind kind) {
  if (name.empty() || WideLength(name) > kMaxNameLength) {
    throw ScriptError("\"" + name + "\" is no model name: 1 to 31 characters are allowed");
  }
  Model model({name, kind});
  model.folder = run.folders.work;
  return model;
}

Model& AddNew(ScriptRun& run, Model model) {
  if (run.host.session.Find(model.id) != nullptr) {
    throw ScriptError("there is a model " + model.id.Text() + " already");
  }
  return run.host.session.Add(std::move(model));
}

void Part(ScriptRun& run, const Statement& statement) {
  Model part = NewModel(run, statement.Text("NAME"), ModelKind::kPart);
  part.solid().sheet_metal = statement.Has("sheet_metal");
  part.solid().skeleton = statement.Has("skeleton");
  AddNew(run, std::move(part));
}

void Assembly(ScriptRun& run, const Statement& statement) {
  AddNew(run, NewModel(run, statement.Text("NAME"), ModelKind::kAssembly));
}

ModelLink LinkedModel(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  return {model.id, &model};
}

void Manufacturing(ScriptRun& run, const Statement& statement) {
  Model model = NewModel(run, statement.Text("NAME"), ModelKind::kManufacturing);
  if (statement.Has("of")) model.As<ManufacturingContent>()->assembly = LinkedModel(run, statement);
  AddNew(run, std::move(model));
}

void Drawing(ScriptRun& run, const Statement& statement) {
  Model drawing = NewModel(run, statement.Text("NAME"), ModelKind::kDrawing);
  auto& content = *drawing.As<DrawingContent>();
  if (statement.Has("of")) content.shows = LinkedModel(run, statement);
  for (const std::string& size : statement.Texts("SIZE")) content.sheets.push_back({size, 1.0});
  AddNew(run, std::move(drawing));
}

void Format(ScriptRun& run, const Statement& statement) {
  Model format = NewModel(run, statement.Text("NAME"), ModelKind::kFormat);
  for (const std::string& size : statement.Texts("SIZE")) {
    format.As<FormatContent>()->sheets.push_back({size});
  }
  AddNew(run, std::move(format));
}

Model& SolidNamed(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  if (model.As<SolidContent>() == nullptr) {
    throw ScriptError(model.id.Text() + " is neither a part nor an assembly");
  }
  return model;
}

// What components and other features have in common.
Feature NewFeature(const SolidContent& owner, const Statement& statement) {
  Feature feature;
  feature.id = statement.Has("id") ? statement.Number("ID") : NextId(owner.features);
  if (statement.Has("STATE")) {
    feature.status = *FromWord<FeatureStatus>(statement.Text("STATE"));
  }
  feature.visible = !statement.Has("invisible");
  feature.hidden = statement.Has("hidden");
  feature.status_flags = statement.Number("FLAGS");
  return feature;
}

// Adds the feature `times` times, with ids that follow each other.
void AddFeatures(Model& owner, Feature feature, int times) {
  for (int i = 0; i < times; ++i, ++feature.id) {
    if (owner.FindFeature(feature.id) != nullptr) {
      throw ScriptError(owner.id.Text() + " has a feature " + std::to_string(feature.id) +
                        " already");
    }
    owner.solid().features.Add(feature);
  }
}

ModelLink ComponentLink(ScriptRun& run, const Statement& statement) {
  const std::string& name = statement.Text("COMPONENT");
  if (statement.Has("missing")) {
    return {ParseModelName(name).value_or(ModelName{name, ModelKind::kPart}), nullptr};
  }
  Model& model = run.ModelNamed(name);
  return {model.id, &model};
}

void Component(ScriptRun& run, const Statement& statement) {
  Model& owner = run.ModelNamed(statement.Text("MODEL"));
  if (owner.id.kind != ModelKind::kAssembly) {
    throw ScriptError(owner.id.Text() + " is no assembly, so it cannot hold components");
  }
  Feature feature = NewFeature(owner.solid(), statement);
  feature.component = ComponentPart{ComponentLink(run, statement)};
  if (statement.Has("at")) {
    feature.component->placement[3] = {statement.Decimal("X"), statement.Decimal("Y"),
                                       statement.Decimal("Z"), 1};
  }
  AddFeatures(owner, std::move(feature), statement.Has("times") ? statement.Number("TIMES") : 1);
  const std::vector<const Model*> cycle = FindCycle({&owner});
  if (!cycle.empty()) {
    throw ScriptError(owner.id.Text() + " would hold itself: " + CycleText(cycle));
  }
}

void OtherFeature(ScriptRun& run, const Statement& statement) {
  Model& owner = SolidNamed(run, statement);
  Feature feature = NewFeature(owner.solid(), statement);
  feature.type = statement.Number("FEATURE_TYPE");
  if (feature.type == kComponentFeatureType)
    throw ScriptError("use \"component\" for features of this type");
  AddFeatures(owner, std::move(feature), 1);
}

// In 16-bit characters.
constexpr size_t kLongestParameterText = 80;

void SetParameter(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  model.SetParameter(statement.Text("NAME"), ParameterArgument(statement));
  model.modified = run.ChangedByUser();
}

void DeleteParameter(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  if (!model.DeleteParameter(statement.Text("NAME"))) {
    throw ScriptError(model.id.Text() + " has no parameter " + statement.Text("NAME"));
  }
  model.modified = run.ChangedByUser();
}

void Surface(ScriptRun& run, const Statement& statement) {
  ItemList<wb::Surface>& surfaces = SolidNamed(run, statement).solid().surfaces;
  const auto at = [&](const char* name) { return statement.Decimal(name); };
  const Box box = {{at("X"), at("Y"), at("Z")}, {at("X2"), at("Y2"), at("Z2")}};
  surfaces.Add({NextId(surfaces), box});
}

void Csys(ScriptRun& run, const Statement& statement) {
  ItemList<CoordinateSystem>& all = SolidNamed(run, statement).solid().coordinate_systems;
  CoordinateSystem csys{statement.Has("id") ? statement.Number("ID") : NextId(all)};
  if (statement.Has("at")) {
    csys.placement[3] = {statement.Decimal("X"), statement.Decimal("Y"), statement.Decimal("Z"), 1};
  }
  if (all.Find(csys.id) != nullptr) {
    throw ScriptError("there is a coordinate system " + std::to_string(csys.id) + " already");
  }
  all.Add(csys);
}

void Bulk(ScriptRun& run, const Statement& statement) {
  FindBenchShape(statement.Text("SHAPE"))->build(run.host.session, statement.Number("TIMES"));
}

void Show(ScriptRun& run, Model& model) {
  run.host.session.ActivateWindow(run.host.session.ShowInWindow(model).id);
}

Model& Retrieved(ScriptRun& run, const std::string& name) {
  Session& session = run.host.session;
  if (Model* const present = run.FindModel(name)) return *present;
  std::vector<ModelName> names;
  if (const auto full = ParseModelName(name)) {
    names = {*full};
  } else {
    for (const ModelKindRow& kind : kKindNames) names.push_back({name, kind.kind});
  }
  for (const ModelName& wanted : names) {
    if (Model* const model = session.Retrieve(wanted)) return *model;
  }
  throw ScriptError("there is no model \"" + name + "\" in session or in " +
                    OwnPath(session.working_directory()) +
                    WhatLiesIn(session.working_directory(), name));
}

void Import(ScriptRun& run, const Statement& statement) {
  const ImportedModels imported = ReadStepModels(run.ScriptPath(statement.Text("PATH")));
  WriteModels(imported, run.host.session.working_directory());
  if (statement.Has("open")) Show(run, Retrieved(run, MainModel(imported).Text()));
}

void Retrieve(ScriptRun& run, const Statement& statement) {
  Retrieved(run, statement.Text("MODEL"));
}

void Open(ScriptRun& run, const Statement& statement) {
  Show(run, Retrieved(run, statement.Text("MODEL")));
}

void Activate(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  Window* const window = run.host.session.FindWindowOf(model);
  if (window == nullptr) throw ScriptError(model.id.Text() + " is shown in no window");
  run.host.session.ActivateWindow(window->id);
}

void ActivateComponent(ScriptRun& run, const Statement& statement) {
  if (statement.Has("none")) {
    run.host.session.ActivateComponent(nullptr);
    return;
  }
  const ComponentSpot spot = FindComponentSpot(run.Root(), statement.Text("PATH"));
  Model* const model = spot.feature->ComponentModel();
  if (model == nullptr) throw ScriptError(statement.Text("PATH") + " is not in session");
  if (spot.feature->status != FeatureStatus::kActive) {
    throw ScriptError(statement.Text("PATH") + " is suppressed");
  }
  run.host.session.ActivateComponent(model);
}

void CloseWindow(ScriptRun& run, const Statement&) {
  Session& session = run.host.session;
  Window* const window = session.FindWindow(session.current_window());
  if (window == nullptr) throw ScriptError("no window is open");
  window->model = nullptr;
  session.ActivateWindow(kNoWindow);
}

void Erase(ScriptRun& run, const Statement& statement) {
  run.host.session.Erase(run.ModelNamed(statement.Text("MODEL")));
}

void SaveAll(ScriptRun& run, const Statement&) {
  for (const auto& model : run.host.session.models()) run.host.session.Save(*model);
}

void Save(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  if (statement.Has("in")) {
    model.folder = run.WorkPath(statement.Text("PATH"));
    std::filesystem::create_directories(model.folder);
  }
  run.host.session.SaveWithHeld(model);
}

#define WB_STATE                                                             \
  "STATE:active|inactive|family_table_suppressed|simplified_rep_suppressed|" \
  "program_suppressed|suppressed|unregenerated"

// clang-format off
constexpr StatementForm kModelForms[] = {
    {"part NAME {[sheet_metal] [skeleton]}",                       kTopPlace,    &Part},
    {"assembly NAME",                                              kTopPlace,    &Assembly},
    {"manufacturing NAME [of MODEL]",                              kTopPlace,    &Manufacturing},
    {"drawing NAME [of MODEL] size SIZE...",                       kTopPlace,    &Drawing},
    {"format NAME size SIZE...",                                   kTopPlace,    &Format},
    {"component MODEL <- COMPONENT {[id ID] [" WB_STATE "] [invisible] [flags FLAGS] [hidden] "
     "[missing] [at X Y Z] [times TIMES]}",                        kTopOrDialog, &Component},
    {"feature MODEL type FEATURE_TYPE {[id ID] [" WB_STATE "] [invisible] [flags FLAGS] [hidden]}",
                                                                   kTopOrDialog, &OtherFeature},
    {"parameter MODEL NAME real NUMBER",                           kTopOrDialog, &SetParameter},
    {"parameter MODEL NAME integer INTEGER",                       kTopOrDialog, &SetParameter},
    {"parameter MODEL NAME string TEXT",                           kTopOrDialog, &SetParameter},
    {"parameter MODEL NAME yes_no FLAG:yes|no",                    kTopOrDialog, &SetParameter},
    {"parameter MODEL NAME missing",                               kTopOrDialog, &DeleteParameter},
    {"surface MODEL X Y Z X2 Y2 Z2",                               kTopOrDialog, &Surface},
    {"csys MODEL {[id ID] [at X Y Z]}",                            kTopOrDialog, &Csys},
    {"bulk SHAPE:flat|tree|chain|single|half|repeated|pool TIMES", kTopPlace,    &Bulk},
    {"import PATH [and open]",                                     kTopPlace,    &Import},
    {"retrieve MODEL",                                             kTopPlace,    &Retrieve},
    {"open MODEL",                                                 kTopPlace,    &Open},
    {"activate component none",                                    kTopOrDialog, &ActivateComponent},
    {"activate component PATH",                                    kTopOrDialog, &ActivateComponent},
    {"activate MODEL",                                             kTopOrDialog, &Activate},
    {"close window",                                               kTopOrDialog, &CloseWindow},
    {"erase MODEL",                                                kTopOrDialog, &Erase},
    {"save all",                                                   kTopPlace,    &SaveAll},
    {"save MODEL [in PATH]",                                       kTopPlace,    &Save},
};
// clang-format on

#undef WB_STATE

}  // namespace

ParameterValue ParameterArgument(const Statement& statement) {
  if (statement.Has("real")) return statement.Decimal("NUMBER");
  if (statement.Has("integer")) return statement.Number("INTEGER");
  if (statement.Has("yes_no")) return statement.Text("FLAG") == "yes";
  const std::string& text = statement.Text("TEXT");
  if (WideLength(text) > kLongestParameterText) {
    throw ScriptError("a text of " + std::to_string(WideLength(text)) +
                      " characters; parameters hold " + std::to_string(kLongestParameterText));
  }
  return text;
}

StatementForms ModelStatements() {
  return kModelForms;
}

}  // namespace wb
