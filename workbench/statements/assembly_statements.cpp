// Statements on families of models, simplified representations and clicks that the plug-in makes.
#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/script/script_paths.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

// A model of its own that comes from a generic, and its row in the generic's family table.
void MakeInstance(ScriptRun& run, const Statement& statement) {
  const std::string& name = statement.Text("NAME");
  Model& generic = run.ModelNamed(statement.Text("MODEL"));
  if (generic.As<SolidContent>() == nullptr) {
    throw ScriptError(generic.id.Text() + " is neither a part nor an assembly");
  }
  Model instance({name, generic.id.kind});
  instance.folder = run.folders.work;
  instance.solid().generic = ModelLink{generic.id, &generic};
  if (run.host.session.Find(instance.id) != nullptr) {
    throw ScriptError("there is a model " + instance.id.Text() + " already");
  }
  generic.solid().family_instances.Add({name, {}});
  run.host.session.Add(std::move(instance));
}

// Whether the item stands for the component at the end of the first `count` ids.
bool StandsFor(const RepItem& item, const std::vector<int>& ids, size_t count) {
  return item.component == ids[count - 1] && item.path.size() == count - 1 &&
         std::equal(item.path.begin(), item.path.end(), ids.begin());
}

// What a representation does with a component: what it says of it, or of the nearest assembly above
// it that it speaks of.
RepAction ActionFor(const SimplifiedRep& rep, const std::vector<int>& ids) {
  RepAction action = rep.action;
  for (size_t count = 1; count <= ids.size(); ++count) {
    for (const RepItem& item : rep.items) {
      if (StandsFor(item, ids, count)) action = item.action;
    }
  }
  return action;
}

void ExpectRep(ScriptRun& run, const Statement& statement) {
  Model& root = run.Root();
  const SimplifiedRep* const rep = root.solid().reps.Find(FoldCase(statement.Text("NAME")));
  if (rep == nullptr) {
    throw ScriptError(root.id.Text() + " has no representation " + statement.Text("NAME"));
  }
  for (const std::string& path : statement.Texts("PATH")) {
    const RepAction action = ActionFor(*rep, FindComponentSpot(root, path).ids);
    const std::string got = action == RepAction::kInclude ? "keeps" : "leaves_out";
    run.Check(statement, got == statement.Text("ACTION"), path, statement.Text("ACTION"), got);
  }
}

void ExpectClicks(ScriptRun& run, const Statement& statement) {
  const auto events = run.host.events.Since<MouseEvent>(run.marks.begin);
  const auto got = std::ranges::count_if(events, &MouseEvent::IsMiddleClick);
  run.Check(statement, got == statement.Number("N"), "middle clicks",
            std::to_string(statement.Number("N")), std::to_string(got));
}

// clang-format off
constexpr StatementForm kAssemblyForms[] = {
    {"instance NAME of MODEL",                             kTopPlace,    &MakeInstance},
    {"expect rep NAME ACTION:keeps|leaves_out PATH...",    kTopOrDialog, &ExpectRep},
    {"expect clicks N",                                    kTopOrDialog, &ExpectClicks},
};
// clang-format on

}  // namespace

StatementForms AssemblyStatements() {
  return kAssemblyForms;
}

}  // namespace wb
