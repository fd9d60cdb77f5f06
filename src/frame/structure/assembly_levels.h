// The structure of an assembly as its collected components tell it: each assembly with its own
// components, once however often it is placed.
#pragma once

#include <vector>

#include "frame/models/component_list.h"
#include "frame/structure/component_tree.h"

namespace qm {

class AssemblyLevels {
 public:
  // `components` are all of `top`. Their features are copied.
  AssemblyLevels(ProMdl top, const ComponentList& components);

  struct Component {
    ProFeature feature;
    ProMdl model;  // null when it is not in session
    ProMdlType type;
  };
  // In the order of `ids()[level]`.
  const std::vector<Component>& at(int level) const {
    return components_[static_cast<size_t>(level)];
  }
  const Levels& ids() const { return ids_; }

 private:
  Levels ids_;
  std::vector<std::vector<Component>> components_;
};

}  // namespace qm
