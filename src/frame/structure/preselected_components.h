// The components that the user has preselected, with the way down to each of them.
#pragma once

#include <vector>

#include "frame/structure/component_tree.h"
#include "toolkit/feature.h"
#include "toolkit/model.h"

namespace qm {

// A preselected part or subassembly.
struct SelectedComponent {
  std::vector<ProFeature> levels;  // from the top level down to the component itself
  ProMdl model = nullptr;          // the root itself when there are no levels
  ProMdlType type = PRO_MDL_UNUSED;
};

struct ComponentSelection {
  std::vector<SelectedComponent> components;
  long long left_out = 0;  // items that cannot be read
  bool is_read = true;     // false: what is preselected, if anything, is not known
};

// Parts, subassemblies and components picked as features, under the assembly `root`; without any
// when nothing of the kind is preselected.
ComponentSelection PreselectedComponents(ProMdl root);

// The same by their ids alone.
ComponentTree TreeOf(const std::vector<SelectedComponent>& selected);

}  // namespace qm
