// Every statement of the script language, by family: each family's rows stand in a file of their
// own, beside the functions that carry them out.
#pragma once

#include <vector>

#include "workbench/language/statement_form.h"

namespace wb {

StatementForms FolderStatements();
StatementForms ModelStatements();
StatementForms FactStatements();
StatementForms StateStatements();
StatementForms LifeStatements();
StatementForms FaultStatements();
StatementForms SpreadsheetStatements();
StatementForms ExportStatements();
StatementForms DialogStatements();
StatementForms ActionExpectations();
StatementForms ModelExpectations();
StatementForms FileExpectations();
StatementForms CallExpectations();
StatementForms RegistryExpectations();

// These and the answers. No line fits forms of two families, so that their order does not matter.
std::vector<StatementForms> StatementFamilies();
// All rows one after another; they last as long as the program.
StatementForms AllStatements();

}  // namespace wb
