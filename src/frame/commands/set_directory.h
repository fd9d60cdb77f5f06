// QmSetDirectory: makes the current model's folder the working directory.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmSetDirectory();

}  // namespace qm
