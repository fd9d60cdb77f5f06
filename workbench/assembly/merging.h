// One part's geometry in another one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "workbench/session/session.h"

namespace wb {

// Where the occurrence at the end of the path lies in `root`; none for a way that leads nowhere.
std::optional<Placement> PlacementAt(const Model& root, const std::vector<int>& path);

// The same for the first occurrence of a model: what a component holds comes before the components
// behind it. None when it is not there.
std::optional<Placement> FirstPlacementOf(const Model& root, const Model& model);

// The way back, of a placement that neither scales nor mirrors.
Placement Inverse(const Placement& placement);
// Whether it does neither.
bool IsRigid(const Placement& placement);

// Whether a part is `other`, or has its geometry by merge features, its own or those of the parts
// merged into it: `other` can take nothing from it.
bool HasGeometryOf(Session& session, const Model& part, const Model& other);

// Gives `target` a merge feature with the surfaces of `source`, which lies at `placement` in the
// target's own frame. Gives the feature's id.
int AddMergeFeature(Model& target, const Model& source, const Placement& placement,
                    const std::string& name);

}  // namespace wb
