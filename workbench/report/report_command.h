// One command's section of the report.
#pragma once

#include <string>
#include <vector>

#include "workbench/report/report_tree.h"
#include "workbench/report/run_record.h"

namespace wb {

// A failure and the section to go to; empty anchor: none.
struct FailureLine {
  const RunFailure* failure;
  std::string anchor;
};

// A red box with a line for each failure, and above it the heading; empty when there are none.
std::string DrawFailures(const std::string& heading, const std::vector<FailureLine>& failures);

// Script line and outcome, as HTML.
std::string PlaceOf(const CommandRecord& command);
std::string OutcomeOf(const CommandRecord& command);

// In few words what it showed and changed: "1 dialog, 2 parameters".
std::string CommandInShort(const CommandRecord& command);

// `failures` are those of this command. Parts appear only where there is something to show.
std::string DrawCommand(const CommandRecord& command, const std::string& anchor,
                        const std::vector<FailureLine>& failures, const TreeLimits& limits);

}  // namespace wb
