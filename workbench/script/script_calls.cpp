// The lines of the trace in order, and the check of names.
#include "workbench/script/script_calls.h"

#include <algorithm>

#include "workbench/script/script_runner.h"
#include "workbench/spreadsheet/spreadsheet_members.h"
#include "workbench/windows/windows_hooks.h"

namespace wb {

void CheckFunctions(const Statement& statement) {
  for (const std::string& function : statement.Texts("FUNCTION")) {
    if (function == "any" || IsSpreadsheetMember(function)) continue;
    if (function.starts_with(kSpreadsheetPrefix)) {
      throw ScriptError("the spreadsheet program has no member " + function +
                        "; a property that is put ends with \"=\"");
    }
    if (!IsMetFunction(function.c_str())) {
      throw ScriptError("neither the host nor the intercepted part of Windows has a function " +
                        function);
    }
  }
}

std::vector<Crossed> LinesInOrder(const ScriptRun& run) {
  if (!run.host.trace.keep_lines) throw ScriptError("the trace is off");
  std::vector<Crossed> lines = run.host.trace.lines();
  std::sort(lines.begin(), lines.end(),
            [](const Crossed& a, const Crossed& b) { return a.call < b.call; });
  return lines;
}

}  // namespace wb
