// The cell of a family table's instance in the column of a parameter.
#pragma once

#include <string>

#include "frame/models/host_name.h"
#include "toolkit/model.h"

namespace qm {

struct InstanceCount {
  ProMdl generic;            // right above the instance
  bool is_generic_instance;  // itself: then its parameters are those of the table above it
  std::wstring instance;
  int count;
};

// Writes a count into the cell of its instance, in the type of the generic's parameter, which is
// made, as 0, where a generic that is no instance lacks it. The column is added where it is
// missing, but only where the generic's file is writable. False, after a line in the run log, when
// the cell does not have the count.
bool WriteInstanceCount(const InstanceCount& counted, HostName& parameter);

}  // namespace qm
