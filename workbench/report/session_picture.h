// What a session looks like at one moment, and what a command changed in it: taken before and after
// a command for the report.
#pragma once

#include <map>
#include <string>

#include "workbench/report/run_record.h"
#include "workbench/session/session.h"

namespace wb {

struct SessionPicture {
  std::string current;                  // the current model's name; empty: none
  ModelTree tree;                       // of the current model
  Scene scene;                          // of it
  std::map<std::string, Model> models;  // as they are, by name
  // Sheets of drawings, taken at once: what their views show may be other models' facts.
  std::map<std::string, std::vector<SheetPicture>> sheets;
};

inline constexpr std::size_t kMostTreeRowsKept = 20'000;

// Row by row, without recursion: assemblies may be thousands of levels deep. Rows beyond `most`
// are only counted.
ModelTree TakeTree(const Model& root, std::size_t most = kMostTreeRowsKept);

SessionPicture TakePicture(const Session& session);

// Fills trees, states, parameters, other facts and drawings of `command`. Models that entered or
// left the session meanwhile give no changes.
void NoteChanges(const SessionPicture& before, const SessionPicture& after, CommandRecord& command);

}  // namespace wb
