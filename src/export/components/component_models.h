// The models that a component export writes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/model.h"

namespace qm {

struct ComponentModel {
  ProMdl handle = nullptr;
  std::wstring name;
  bool is_assembly = false;
};

struct ComponentModels {
  std::vector<ComponentModel> models;
  long long left_out = 0;  // what the host does not tell enough of
};

// The parts and assemblies under the current assembly, each once, in the order of the component
// list; neither skeleton models nor the assembly itself. Nothing, after the message, when there are
// none; nothing and no message without a current assembly.
std::optional<ComponentModels> OpenComponents();

}  // namespace qm
