// QmParams: the dialog that adds, updates and deletes one parameter in many models, and writes
// outline and sheet sizes into parameters.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmParams();

}  // namespace qm
