// Statements that set and check any fact of a model by its path, such as "features/12/hidden", and
// that add items to its lists.
#include "workbench/script/script_runner.h"
#include "workbench/session/drawing_views.h"
#include "workbench/session/model_facts.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

// What the tables of facts refuse ends the script.
template <typename Use>
void WithModel(ScriptRun& run, const Statement& statement, Use use) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  try {
    use(model);
  } catch (const FactError& error) {
    throw ScriptError(error.what());
  }
}

// What follows from a changed fact: links, and the views of a drawing.
void Follow(ScriptRun& run, Model& model) {
  run.host.session.Complete(model);
  model.modified = run.ChangedByUser();
  DrawingContent* const drawing = model.As<DrawingContent>();
  if (drawing == nullptr) return;
  for (const DrawingView& view : drawing->views) RegenerateView(*drawing, view.id);
}

void SetFact(ScriptRun& run, const Statement& statement) {
  WithModel(run, statement, [&](Model& model) {
    const FactPlace place = FindFact(model, statement.Text("FACT"));
    const FactValue now = place.row->get(place.record);
    place.row->set(place.record, ParseFact(statement.Text("VALUE"), now));
    Follow(run, model);
  });
}

void Add(ScriptRun& run, const Statement& statement) {
  const std::vector<std::string>& words = statement.Texts("FACTS");
  if (words.size() % 2 != 0) throw ScriptError("facts are pairs of a name and a value");
  std::vector<std::pair<std::string, std::string>> facts;
  for (size_t i = 0; i < words.size(); i += 2) facts.emplace_back(words[i], words[i + 1]);
  WithModel(run, statement, [&](Model& model) {
    AddItem(model, statement.Text("ENTRY"), facts);
    Follow(run, model);
  });
}

void ExpectFact(ScriptRun& run, const Statement& statement) {
  WithModel(run, statement, [&](Model& model) {
    const FactPlace place = FindFact(model, statement.Text("FACT"));
    const FactValue got = place.row->get(place.record);
    run.Check(statement, IsFact(got, statement.Text("VALUE")),
              statement.Text("FACT") + " of " + model.id.Text(), Quoted(statement.Text("VALUE")),
              Quoted(FactText(got)));
  });
}

void ExpectEntries(ScriptRun& run, const Statement& statement) {
  WithModel(run, statement, [&](Model& model) {
    const size_t got = CountItems(model, statement.Text("ENTRY"));
    run.Check(statement, static_cast<int>(got) == statement.Number("N"),
              statement.Text("ENTRY") + " of " + model.id.Text(), statement.Text("N"),
              std::to_string(got));
  });
}

// clang-format off
constexpr StatementForm kFactForms[] = {
    {"fact MODEL FACT VALUE",         kTopOrDialog, &SetFact},
    {"add MODEL ENTRY [FACTS...]",    kTopOrDialog, &Add},
    {"expect fact MODEL FACT VALUE",  kTopOrDialog, &ExpectFact},
    {"expect entries MODEL ENTRY N",  kTopOrDialog, &ExpectEntries},
};
// clang-format on

}  // namespace

StatementForms FactStatements() {
  return kFactForms;
}

}  // namespace wb
