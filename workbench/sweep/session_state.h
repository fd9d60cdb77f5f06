// The whole of a session and its folders as facts by name, to be compared fact by fact.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "workbench/host/host.h"
#include "workbench/script/script_snapshot.h"

namespace wb {

// Facts of models (of drawings with their sheets, views, tables and dimensions), windows,
// selection, folders at work, options, clipboard, what is registered and how, entries of settings,
// contents of other files, and folders. What lies in another folder than the first has that one's
// name before its own.
using SessionState = std::map<std::string, std::string>;

SessionState StateNow(Host& host, const std::vector<std::filesystem::path>& folders);
// The same by what the folders hold, which was read before.
SessionState StateNow(Host& host, const std::vector<std::filesystem::path>& folders,
                      const FolderContents& contents);

// The names of all facts that one of the two lacks or has otherwise.
std::vector<std::string> Differences(const SessionState& a, const SessionState& b);

// A complaint for each fact that a sweep has not put back.
std::vector<std::string> NotPutBack(const SessionState& before, const SessionState& now);

// The value of a fact for complaints; "nothing" where it is not there.
std::string TextOfFact(const SessionState& state, const std::string& name);
bool HaveSame(const std::string& name, const SessionState& a, const SessionState& b);

}  // namespace wb
