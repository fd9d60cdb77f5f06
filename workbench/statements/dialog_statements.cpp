// What a script's user does in a dialog, and what a dialog shows.
#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/dialog/dialog_text.h"
#include "workbench/script/script_runner.h"
#include "workbench/statements/statement_families.h"

namespace wb {
namespace {

const char* EventName(UiEvent event) {
  switch (event) {
    case UiEvent::kActivate:
      return kActivateEvent;
    case UiEvent::kSelect:
      return kSelectEvent;
    case UiEvent::kInput:
      return "input";
    case UiEvent::kArm:
      return kArmEvent;
    case UiEvent::kFocusIn:
      return kFocusInEvent;
    default:
      return "";
  }
}

Dialog& State(ScriptRun& run) {
  return run.user.dialog().state;
}

// The one field that the statement names, by its name or by its label.
const Field& FieldAt(ScriptRun& run, const Statement& statement) {
  const std::string& called = statement.Text("COMPONENT");
  const Dialog& dialog = State(run);
  const std::vector<const Field*> fields = dialog.FieldsCalled(called);
  if (fields.size() == 1) return *fields.front();
  if (fields.empty()) {
    throw ScriptError("dialog " + run.user.dialog().name + " has no component " + called +
                      "; it has\n" + DescribeFields(dialog));
  }
  std::vector<std::string> names;
  for (const Field* const field : fields) {
    names.push_back(field->name + " (\"" + dialog.FullLabelOf(*field) + "\")");
  }
  throw ScriptError("the label " + Quoted(called) + " is that of " + Join(", ", names) +
                    "; say which");
}

const std::string& NameAt(ScriptRun& run, const Statement& statement) {
  return FieldAt(run, statement).name;
}

// Fires what the deed sets off; a refused one is the script's failure.
void Deed(ScriptRun& run, const Statement& statement, const UserOutcome& outcome) {
  if (!outcome.Done()) {
    if (!run.lenient) run.Fail(statement, outcome.refusal);
    return;
  }
  const std::string name = outcome.target.empty() ? NameAt(run, statement) : outcome.target;
  run.user.Fire(run.user.dialog(), name, EventName(outcome.event));
}

template <typename T>
const T& StateOf(ScriptRun& run, const Statement& statement) {
  const Field& component = FieldAt(run, statement);
  const T* const state = std::get_if<T>(&component.state);
  if (state != nullptr) return *state;
  throw ScriptError(std::string(KindName(component.kind)) + " " + component.name +
                    " has nothing of this kind");
}

// Who types into a field goes into it first.
void TypeInto(ScriptRun& run, const Statement& statement, const std::string& field) {
  const UserOutcome into = State(run).UserGoInto(field);
  if (into.event != UiEvent::kNone || !into.Done()) Deed(run, statement, into);
  UserOutcome typed = State(run).UserSetField(field, statement.Text("TEXT"));
  typed.target = field;
  Deed(run, statement, typed);
}

void Set(ScriptRun& run, const Statement& statement) {
  TypeInto(run, statement, NameAt(run, statement));
}

void SetCell(ScriptRun& run, const Statement& statement) {
  std::string field;
  const UiStatus found = StateOf<TableModel>(run, statement)
                             .GetComponent(statement.Text("ROW"), statement.Text("COLUMN"), &field);
  if (found == UiStatus::kOk) return TypeInto(run, statement, field);
  throw ScriptError("there is no field in row " + statement.Text("ROW") + ", column " +
                    statement.Text("COLUMN"));
}

void Choose(ScriptRun& run, const Statement& statement) {
  Deed(run, statement, State(run).UserSelect(NameAt(run, statement), statement.Texts("ITEM_NAME")));
}

void Rows(ScriptRun& run, const Statement& statement) {
  Deed(run, statement, State(run).UserSelect(NameAt(run, statement), statement.Texts("ROW")));
}

// A check button that already is as wanted is left alone.
void SetCheck(ScriptRun& run, const Statement& statement) {
  const bool wanted = statement.Has("check");
  if (StateOf<CheckState>(run, statement).set == wanted) return;
  Deed(run, statement, State(run).UserToggle(NameAt(run, statement)));
}

void DoubleClick(ScriptRun& run, const Statement& statement) {
  Deed(run, statement, State(run).UserDoubleClick(NameAt(run, statement), statement.Text("ROW")));
}

void Focus(ScriptRun& run, const Statement& statement) {
  Deed(run, statement,
       State(run).UserFocusCell(NameAt(run, statement), statement.Text("ROW"),
                                statement.Text("COLUMN")));
}

void Press(ScriptRun& run, const Statement& statement) {
  Deed(run, statement, State(run).UserPress(NameAt(run, statement)));
}

void Close(ScriptRun& run, const Statement&) {
  run.user.Fire(run.user.dialog(), "", kCloseEvent);
}

void ExpectTitle(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "title", statement.Text("TEXT"), State(run).Title());
}

void ExpectField(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "field " + statement.Text("COMPONENT"), statement.Text("TEXT"),
                StateOf<TextState>(run, statement).Value());
}

void CheckNames(ScriptRun& run, const Statement& statement, const std::string& what,
                const std::vector<std::string>& expected, const std::vector<std::string>& got) {
  const auto shown = [](const std::vector<std::string>& names) {
    return names.empty() ? "none" : Join(" ", names);
  };
  run.Check(statement, expected == got, what + " " + statement.Text("COMPONENT"), shown(expected),
            shown(got));
}

void ExpectChoice(ScriptRun& run, const Statement& statement) {
  const auto& choice = StateOf<ChoiceState>(run, statement);
  CheckNames(run, statement, "choice", choice.NamesOf(statement.Texts("ITEM_NAME")),
             choice.Selected());
}

void ExpectItems(ScriptRun& run, const Statement& statement) {
  const auto& choice = StateOf<ChoiceState>(run, statement);
  CheckNames(run, statement, "items", choice.NamesOf(statement.Texts("ITEM_NAME")), choice.Names());
}

void ExpectRows(ScriptRun& run, const Statement& statement) {
  CheckNames(run, statement, "rows", statement.Texts("ROW"),
             StateOf<TableModel>(run, statement).RowNames());
}

void ExpectSelectedRows(ScriptRun& run, const Statement& statement) {
  CheckNames(run, statement, "selected rows", statement.Texts("ROW"),
             StateOf<TableModel>(run, statement).SelectedRows());
}

void CheckEither(ScriptRun& run, const Statement& statement, const char* yes, const char* no,
                 bool holds) {
  const std::string got = holds ? yes : no;
  run.Check(statement, statement.Text("STATE") == got, statement.Text("COMPONENT"),
            statement.Text("STATE"), got);
}

void ExpectCheck(ScriptRun& run, const Statement& statement) {
  CheckEither(run, statement, "checked", "unchecked", StateOf<CheckState>(run, statement).set);
}

void ExpectEnabled(ScriptRun& run, const Statement& statement) {
  CheckEither(run, statement, "enabled", "disabled", State(run).IsUsable(FieldAt(run, statement)));
}

void ExpectVisible(ScriptRun& run, const Statement& statement) {
  CheckEither(run, statement, "visible", "invisible", State(run).IsShown(FieldAt(run, statement)));
}

void ExpectLabel(ScriptRun& run, const Statement& statement) {
  run.CheckText(statement, "label of " + statement.Text("COMPONENT"), statement.Text("TEXT"),
                State(run).LabelOf(FieldAt(run, statement)));
}

void NoSuchCell(ScriptRun& run, const Statement& statement) {
  run.Fail(statement, "there is no cell in row " + statement.Text("ROW") + ", column " +
                          statement.Text("COLUMN"));
}

void ExpectCell(ScriptRun& run, const Statement& statement) {
  const std::string& row = statement.Text("ROW");
  const std::string& column = statement.Text("COLUMN");
  const auto& table = StateOf<TableModel>(run, statement);
  std::string label;
  if (table.GetLabel(row, column, &label) != UiStatus::kOk) {
    NoSuchCell(run, statement);
    return;
  }
  const std::string text = State(run).CellText(table, row, column);
  run.CheckText(statement, "cell " + row + " " + column, statement.Text("TEXT"), text);
}

void ExpectColumns(ScriptRun& run, const Statement& statement) {
  CheckNames(run, statement, "columns", statement.Texts("COLUMN"),
             StateOf<TableModel>(run, statement).ColumnNames());
}

void ExpectLabels(ScriptRun& run, const Statement& statement) {
  CheckNames(run, statement, "column labels", statement.Texts("TEXT"),
             StateOf<TableModel>(run, statement).ColumnLabels());
}

void ExpectColour(ScriptRun& run, const Statement& statement) {
  const std::string& row = statement.Text("ROW");
  const std::string& column = statement.Text("COLUMN");
  const int wanted = statement.Has("none") ? kNoCellColor : statement.Number("N");
  int colour = kNoCellColor;
  if (StateOf<TableModel>(run, statement).GetBackground(row, column, &colour) != UiStatus::kOk) {
    NoSuchCell(run, statement);
    return;
  }
  const auto shown = [](int number) {
    return number == kNoCellColor ? std::string("none") : std::to_string(number);
  };
  run.Check(statement, colour == wanted, "colour of cell " + row + " " + column, shown(wanted),
            shown(colour));
}

// clang-format off
constexpr StatementForm kDialogForms[] = {
    {"set COMPONENT TEXT",                       kDialogPlace, &Set},
    {"set COMPONENT ROW COLUMN TEXT",            kDialogPlace, &SetCell},
    {"choose COMPONENT ITEM_NAME...",            kDialogPlace, &Choose},
    {"check COMPONENT",                          kDialogPlace, &SetCheck},
    {"uncheck COMPONENT",                        kDialogPlace, &SetCheck},
    {"rows COMPONENT ROW...",                    kDialogPlace, &Rows},
    {"double_click COMPONENT ROW",               kDialogPlace, &DoubleClick},
    {"focus COMPONENT ROW COLUMN",               kDialogPlace, &Focus},
    {"press COMPONENT",                          kDialogPlace, &Press},
    {"close",                                    kDialogPlace, &Close},
    {"expect title TEXT",                        kDialogPlace, &ExpectTitle},
    {"expect field COMPONENT TEXT",              kDialogPlace, &ExpectField},
    {"expect choice COMPONENT none",             kDialogPlace, &ExpectChoice},
    {"expect choice COMPONENT ITEM_NAME...",     kDialogPlace, &ExpectChoice},
    {"expect items COMPONENT ITEM_NAME...",      kDialogPlace, &ExpectItems},
    {"expect STATE:checked|unchecked COMPONENT", kDialogPlace, &ExpectCheck},
    {"expect STATE:enabled|disabled COMPONENT",  kDialogPlace, &ExpectEnabled},
    {"expect STATE:visible|invisible COMPONENT", kDialogPlace, &ExpectVisible},
    {"expect label COMPONENT TEXT",              kDialogPlace, &ExpectLabel},
    {"expect cell COMPONENT ROW COLUMN TEXT",    kDialogPlace, &ExpectCell},
    {"expect selected_rows COMPONENT none",      kDialogPlace, &ExpectSelectedRows},
    {"expect selected_rows COMPONENT ROW...",    kDialogPlace, &ExpectSelectedRows},
    {"expect rows COMPONENT none",               kDialogPlace, &ExpectRows},
    {"expect rows COMPONENT ROW...",             kDialogPlace, &ExpectRows},
    {"expect columns COMPONENT COLUMN...",       kDialogPlace, &ExpectColumns},
    {"expect labels COMPONENT TEXT...",          kDialogPlace, &ExpectLabels},
    {"expect colour COMPONENT ROW COLUMN none",  kDialogPlace, &ExpectColour},
    {"expect colour COMPONENT ROW COLUMN N",     kDialogPlace, &ExpectColour},
};
// clang-format on

}  // namespace

StatementForms DialogStatements() {
  return kDialogForms;
}

}  // namespace wb
