// The relation sets of a model through the host. What does not work is logged under the model's
// name.
#pragma once

#include <optional>
#include <string_view>

#include "params/model_targets.h"
#include "params/relation_rules.h"
#include "toolkit/properties.h"

namespace qm {

enum class RelationKind {
  kOrdinary,
  kPostRegeneration,
};
// By the name of a radio button, "init" or "after"; nothing for any other.
std::optional<RelationKind> RelationKindOf(std::string_view button);

// Nothing when there is no such set, or it cannot be opened.
std::optional<ProRelset> OpenRelations(const ModelTarget& target, RelationKind kind);
// An ordinary set for a model that has none.
std::optional<ProRelset> CreateRelations(const ModelTarget& target);

// Empty when the set has no lines; nothing when they cannot be read.
std::optional<RelationLines> ReadRelations(const ModelTarget& target, ProRelset* set);
// False when the set has not taken the lines.
bool WriteRelations(const ModelTarget& target, ProRelset* set, RelationLines lines);

}  // namespace qm
