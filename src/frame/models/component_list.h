// The components of an assembly, through all its levels, as the batch commands work on them.
#pragma once

#include <cstddef>
#include <vector>

#include "toolkit/feature.h"
#include "toolkit/model.h"
#include "toolkit/owners.h"

namespace qm {

enum class ComponentKind {
  kAll,         // also components whose model is not in session
  kAssemblies,  // subassemblies
  kParts,
  kSheetMetal,
};

// Component features in depth-first order, an assembly's own before those inside it. A model that
// is placed three times stands in it three times; nothing is removed.
class ComponentList {
 public:
  // Number of components in the host's array.
  int size() const { return size_; }
  bool empty() const { return size_ == 0; }

  // The feature that places the component in its parent assembly, valid as long as the list.
  ProFeature* feature(int index) const { return &features_[index]; }
  // The placed model; null when it is not in session.
  ProMdl model(int index) const { return models_[static_cast<size_t>(index)].handle; }
  // PRO_MDL_UNUSED when there is no model or the host does not tell.
  ProMdlType type(int index) const { return models_[static_cast<size_t>(index)].type; }
  // True when the same feature stands further up: its assembly is placed several times.
  bool repeated(int index) const { return models_[static_cast<size_t>(index)].repeated; }

  // Components of which the host does not tell whether they belong here, each once, and assemblies
  // whose levels could not be read: what is not in the list, or what they hold is not.
  const std::vector<ProFeature>& left_out() const { return left_out_; }

 private:
  friend class ComponentCollector;
  struct Model {
    ProMdl handle;
    ProMdlType type;
    bool repeated;
  };

  HostArray<ProFeature> features_;
  std::vector<Model> models_;  // beside each feature, so that nobody asks the host again
  std::vector<ProFeature> left_out_;
  int size_ = 0;
};

// Fills `list` with the active, visible components of one kind under `root`. Subassemblies are
// entered whatever the kind. A component whose model is not in session ends its level. Fails only
// when the array cannot be allocated; what cannot be read is left out, counted and logged.
ProError CollectComponents(ProSolid root, ComponentKind kind, ComponentList* list);

// All kinds, and on the top level also the further feature types that the show-all command accepts.
ProError CollectComponentsForShowAll(ProSolid root, ComponentList* list);

}  // namespace qm
