// Statements that set and check any fact of a model by its path, such as "features/12/hidden".
#include "workbench/script/script_runner.h"
#include "workbench/session/model_facts.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

// What the tables of facts refuse ends the script.
template <typename Use>
void WithFact(ScriptRun& run, const Statement& statement, Use use) {
  Model& model = run.ModelNamed(statement.Text("MODEL"));
  try {
    use(model, FindFact(model, statement.Text("FACT")));
  } catch (const FactError& error) {
    throw ScriptError(error.what());
  }
}

void SetFact(ScriptRun& run, const Statement& statement) {
  WithFact(run, statement, [&](Model& model, const FactPlace& place) {
    const FactValue now = place.row->get(place.record);
    place.row->set(place.record, ParseFact(statement.Text("VALUE"), now));
    run.host.session.Resolve(model);
    model.modified = run.ChangedByUser();
  });
}

void ExpectFact(ScriptRun& run, const Statement& statement) {
  WithFact(run, statement, [&](Model& model, const FactPlace& place) {
    run.CheckText(statement, statement.Text("FACT") + " of " + model.id.Text(),
                  statement.Text("VALUE"), FactText(place.row->get(place.record)));
  });
}

// clang-format off
constexpr StatementForm kForms[] = {
    {"fact MODEL FACT VALUE",        kTopOrDialog, &SetFact},
    {"expect fact MODEL FACT VALUE", kTopOrDialog, &ExpectFact},
};
// clang-format on

}  // namespace

StatementForms FactStatements() {
  return kForms;
}

}  // namespace wb
