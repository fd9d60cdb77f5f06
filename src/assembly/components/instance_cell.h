// The cell of a family table's instance in the column of a parameter.
#pragma once

#include <string>

#include "frame/models/host_name.h"
#include "toolkit/model.h"

namespace qm {

// Writes a count into the cell of the instance of this name, in the type of the generic's
// parameter, which is made, as 0, where the generic lacks it. The column is added where it is
// missing, but only where the generic's file is writable. False, after a line in the run log, when
// the cell does not have the count.
bool WriteInstanceCount(ProMdl generic, const std::wstring& instance, HostName& parameter,
                        int count);

}  // namespace qm
