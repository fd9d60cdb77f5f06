// The families, and all of them in one.
#include "workbench/statements/statement_families.h"

#include "workbench/script/script_user.h"

namespace wb {

std::vector<StatementForms> StatementFamilies() {
  return {FolderStatements(), ModelStatements(),  FactStatements(),        StateStatements(),
          LifeStatements(),   FaultStatements(),  SpreadsheetStatements(), ExportStatements(),
          AnswerStatements(), DialogStatements(), ActionExpectations(),    ModelExpectations(),
          FileExpectations(), CallExpectations(), RegistryExpectations()};
}

StatementForms AllStatements() {
  static const std::vector<StatementForm> all = [] {
    std::vector<StatementForm> joined;
    for (const StatementForms family : StatementFamilies()) {
      joined.insert(joined.end(), family.begin(), family.end());
    }
    return joined;
  }();
  return all;
}

}  // namespace wb
