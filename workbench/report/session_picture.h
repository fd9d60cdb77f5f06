// What a session looks like at one moment, and what a command changed in it: taken before and after
// a command for the report.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "workbench/report/run_record.h"
#include "workbench/session/session.h"

namespace wb {

struct FeatureFact {
  int id = 0;
  std::string component;  // "bolt.prt"; empty: not a component
  bool hidden = false;
  bool visible = true;
  FeatureStatus status = FeatureStatus::kActive;
  bool operator==(const FeatureFact&) const = default;
};

struct ModelPicture {
  std::vector<std::pair<std::string, std::string>> parameters;  // name and value as shown
  std::vector<FeatureFact> features;
  std::optional<DrawingPicture> drawing;  // of drawings
};

struct SessionPicture {
  std::string current;                         // the current model's name; empty: none
  ModelTree tree;                              // of the current model
  std::map<std::string, ModelPicture> models;  // by name
};

inline constexpr std::size_t kMostTreeRowsKept = 20'000;

// Row by row, without recursion: assemblies may be thousands of levels deep. Rows beyond `most`
// are only counted.
ModelTree TakeTree(const Model& root, std::size_t most = kMostTreeRowsKept);

SessionPicture TakePicture(const Session& session);

// Fills trees, states, parameters and drawings of `command`. Models that entered or left the
// session meanwhile give no changes.
void NoteChanges(const SessionPicture& before, const SessionPicture& after, CommandRecord& command);

}  // namespace wb
