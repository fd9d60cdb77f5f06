// Where commands are available, and why one is not here and now.
#pragma once

#include <span>
#include <string>

#include "workbench/host/host.h"

namespace wb {

// The modes that scripts and lists speak of; "none" is a session in which no model is shown.
struct ModeColumn {
  const char* word;
  int mode;
};
std::span<const ModeColumn> ModeColumns();

// Whether the command's access rule takes the mode. Leaves no mark in trace and faults.
bool IsAvailableIn(Host& host, const std::string& command, const ModeColumn& mode);

// "the current model is bolt.prt, in part mode; the command wants assembly or manufacturing mode"
std::string WhyUnavailable(Host& host, const std::string& command);

// "QmIsolate" after "QmIsolte": "; did you mean QmIsolate?", or nothing.
std::string CommandMeant(const Host& host, const std::string& command);

}  // namespace wb
