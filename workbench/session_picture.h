// What a session looks like at one moment, and what a command changed in it: taken before and after
// a command for the report.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "workbench/run_record.h"
#include "workbench/session.h"

namespace wb {

struct FeatureState {
  std::string item;  // "component bolt.prt (12)", "feature 40"
  std::string state;
  bool operator==(const FeatureState&) const = default;
};

struct ModelPicture {
  std::string name;
  std::vector<std::pair<std::string, std::string>> parameters;  // in order of definition
  std::map<int, FeatureState> features;                         // by id
  DrawingPicture drawing;                                       // of drawings
  bool is_drawing = false;
};

struct SessionPicture {
  ModelTree tree;       // of the current model
  std::string current;  // its name; empty: none
  std::map<std::string, ModelPicture> models;  // by name
};

inline constexpr std::size_t kMostTreeRowsKept = 20'000;

// Row by row, without recursion: assemblies may be thousands of levels deep. Rows beyond `most`
// are only counted.
ModelTree TakeTree(const Model& root, std::size_t most = kMostTreeRowsKept);

SessionPicture TakePicture(const Session& session);

// Fills trees, states, parameters and drawings of `command`. Models that entered or left the
// session meanwhile give no changes.
void NoteChanges(const SessionPicture& before, const SessionPicture& after,
                 CommandRecord& command);

}  // namespace wb
