// Expectations on models, windows and selection.
#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/script/script_arguments.h"
#include "workbench/script/script_paths.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

std::string DescribeValue(const ParameterValue& value) {
  return std::string(ParameterTypeWord(value)) + " " + Quoted(ParameterText(value));
}

void ExpectParameter(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  const Parameter* const held = model.FindParameter(statement.Text("NAME"));
  const std::string got = held == nullptr ? "none" : DescribeValue(held->value);
  const std::string wanted =
      statement.Has("missing") ? "none" : DescribeValue(ParameterArgument(statement));
  run.Check(statement, got == wanted,
            "parameter " + statement.Text("NAME") + " of " + model.id.Text(), wanted, got);
}

void ExpectParameters(ScriptRun& run, const Statement& statement) {
  const Model& model = run.ModelNamed(statement.Text("MODEL"));
  const int got = static_cast<int>(model.parameters.size());
  run.Check(statement, got == statement.Number("N"), "parameters of " + model.id.Text(),
            statement.Text("N"), std::to_string(got));
}

void CheckHidden(ScriptRun& run, const Statement& statement, const std::string& what,
                 const Feature& feature) {
  const std::string got = feature.hidden ? "hidden" : "shown";
  run.Check(statement, got == statement.Text("STATE"), what, statement.Text("STATE"), got);
}

void ExpectHidden(ScriptRun& run, const Statement& statement) {
  for (const std::string& path : statement.Texts("PATH")) {
    CheckHidden(run, statement, path, *FindComponentSpot(run.Root(), path).feature);
  }
}

void ExpectFeature(ScriptRun& run, const Statement& statement) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  const Feature* const feature = model.FindFeature(statement.Number("ID"));
  const std::string name = "feature " + statement.Text("ID") + " of " + model.id.Text();
  if (feature == nullptr) throw ScriptError("there is no " + name);
  CheckHidden(run, statement, name, *feature);
}

void ExpectModified(ScriptRun& run, const Statement& statement) {
  for (const std::string& name : statement.Texts("MODEL")) {
    const std::string got = run.ModelNamed(name).modified ? "modified" : "unmodified";
    run.Check(statement, got == statement.Text("STATE"), name, statement.Text("STATE"), got);
  }
}

void ExpectSession(ScriptRun& run, const Statement& statement) {
  for (const std::string& name : statement.Texts("MODEL")) {
    const std::string got = run.FindModel(name) != nullptr ? "in_session" : "not_in_session";
    run.Check(statement, got == statement.Text("STATE"), name, statement.Text("STATE"), got);
  }
}

void ExpectDirectory(ScriptRun& run, const Statement& statement) {
  const std::filesystem::path wanted = run.WorkPath(statement.Text("PATH"));
  const std::filesystem::path& got = run.host.session.working_directory();
  std::error_code error;
  run.Check(statement, std::filesystem::equivalent(wanted, got, error), "working directory",
            PathToUtf8(wanted), PathToUtf8(got));
}

void CheckWindow(ScriptRun& run, const Statement& statement, const char* what, const Model* got) {
  const Model* const wanted =
      statement.Has("none") ? nullptr : &run.ModelNamed(statement.Text("MODEL"));
  run.Check(statement, got == wanted, what, wanted == nullptr ? "none" : wanted->id.Text(),
            got == nullptr ? "none" : got->id.Text());
}

void ExpectWindow(ScriptRun& run, const Statement& statement) {
  CheckWindow(run, statement, "current window", run.host.session.Current());
}

void ExpectActive(ScriptRun& run, const Statement& statement) {
  const Window* const window = run.host.session.FindWindow(run.host.session.active_window());
  CheckWindow(run, statement, "active window", window == nullptr ? nullptr : window->model);
}

// Items other than models are told by their owner alone, however it was reached.
bool IsSamePick(const PickedItem& a, const PickedItem& b) {
  const bool is_model = a.owner != nullptr && a.type == static_cast<int>(a.owner->id.kind);
  return a.type == b.type && a.id == b.id && a.owner == b.owner && (!is_model || a.path == b.path);
}

void ExpectSelection(ScriptRun& run, const Statement& statement) {
  const std::vector<PickedItem>& got = run.host.session.selection_buffer;
  std::vector<PickedItem> wanted;
  if (!statement.Has("none")) wanted = PicksOf(run, statement);
  const auto described = [](const std::vector<PickedItem>& picks) {
    std::vector<std::string> names;
    for (const PickedItem& pick : picks) names.push_back(DescribePick(pick));
    return names.empty() ? "none" : Join(", ", names);
  };
  run.Check(statement, std::equal(wanted.begin(), wanted.end(), got.begin(), got.end(), IsSamePick),
            "selection", described(wanted), described(got));
}

// Repaints and refreshes of the last action, the former first.
std::vector<std::string> ShownAnew(const ScriptRun& run) {
  std::vector<std::string> lines;
  for (const Repaint& repaint : run.host.events.Since<Repaint>(run.marks.begin)) {
    lines.push_back("repaint " + std::to_string(repaint.window));
  }
  for (const TreeRefresh& refresh : run.host.events.Since<TreeRefresh>(run.marks.begin)) {
    lines.push_back("tree " + refresh.model);
  }
  return lines;
}

void ExpectRepaint(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string> all = ShownAnew(run);
  if (statement.Has("no")) {
    run.Check(statement, all.empty(), "repaints and refreshes", "none", Join(", ", all));
  } else {
    run.Check(statement, !run.host.events.Since<Repaint>(run.marks.begin).empty(), "repaint", "one",
              "none");
  }
}

void ExpectRefresh(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string> all = ShownAnew(run);
  const std::string wanted = "tree " + run.ModelNamed(statement.Text("MODEL")).id.Text();
  run.Check(statement, std::find(all.begin(), all.end(), wanted) != all.end(),
            "refresh of the model tree", wanted, all.empty() ? "none" : Join(", ", all));
}

void ExpectRegenerated(ScriptRun& run, const Statement& statement) {
  std::vector<std::string> wanted;
  for (const std::string& name : statement.Texts("MODEL")) {
    wanted.push_back(run.ModelNamed(name).id.Text());
  }
  std::vector<std::string> got;
  for (const Regeneration& event : run.host.events.Since<Regeneration>(run.marks.begin)) {
    got.push_back(event.model);
  }
  const auto told = [](const std::vector<std::string>& names) {
    return names.empty() ? "none" : Join(", ", names);
  };
  std::ranges::sort(wanted);
  std::ranges::sort(got);
  run.Check(statement, wanted == got, "models regenerated", told(wanted), told(got));
}

void ExpectElementTrees(ScriptRun& run, const Statement& statement) {
  const auto got = run.host.events.TextsSince<ElementTree>(run.marks.begin);
  run.Check(statement, got == statement.Texts("TEXT"), "element trees",
            Join("; ", statement.Texts("TEXT")), Join("; ", got));
}

void ExpectActiveComponent(ScriptRun& run, const Statement& statement) {
  CheckWindow(run, statement, "active component", run.host.session.Active());
}

// clang-format off
constexpr StatementForm kExpectModelsForms[] = {
    {"expect parameter MODEL NAME is missing",            kTopOrDialog, &ExpectParameter},
    {"expect parameter MODEL NAME is real NUMBER",        kTopOrDialog, &ExpectParameter},
    {"expect parameter MODEL NAME is integer INTEGER",    kTopOrDialog, &ExpectParameter},
    {"expect parameter MODEL NAME is string TEXT",        kTopOrDialog, &ExpectParameter},
    {"expect parameter MODEL NAME is yes_no FLAG:yes|no", kTopOrDialog, &ExpectParameter},
    {"expect parameters MODEL N",                         kTopOrDialog, &ExpectParameters},
    {"expect feature MODEL ID STATE:hidden|shown",        kTopOrDialog, &ExpectFeature},
    {"expect STATE:hidden|shown PATH...",                 kTopOrDialog, &ExpectHidden},
    {"expect STATE:modified|unmodified MODEL...",         kTopOrDialog, &ExpectModified},
    {"expect STATE:in_session|not_in_session MODEL...",   kTopOrDialog, &ExpectSession},
    {"expect directory PATH",                             kTopOrDialog, &ExpectDirectory},
    {"expect window none",                                kTopOrDialog, &ExpectWindow},
    {"expect window MODEL",                               kTopOrDialog, &ExpectWindow},
    {"expect active model MODEL",                         kTopOrDialog, &ExpectActiveComponent},
    {"expect active none",                                kTopOrDialog, &ExpectActive},
    {"expect active MODEL",                               kTopOrDialog, &ExpectActive},
    {"expect selection none",                             kTopOrDialog, &ExpectSelection},
    {"expect selection item ITEM ID of MODEL",            kTopOrDialog, &ExpectSelection},
    {"expect selection PATH...",                          kTopOrDialog, &ExpectSelection},
    {"expect repaint",                                    kTopOrDialog, &ExpectRepaint},
    {"expect no repaint",                                 kTopOrDialog, &ExpectRepaint},
    {"expect refresh MODEL",                              kTopOrDialog, &ExpectRefresh},
    {"expect regenerated none",                           kTopOrDialog, &ExpectRegenerated},
    {"expect regenerated MODEL...",                       kTopOrDialog, &ExpectRegenerated},
    {"expect element_trees TEXT...",                      kTopOrDialog, &ExpectElementTrees},
};
// clang-format on

}  // namespace

StatementForms ModelExpectations() {
  return kExpectModelsForms;
}

}  // namespace wb
