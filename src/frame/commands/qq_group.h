// QmQQGroup: the dialog that says where to get help.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmQQGroup();

}  // namespace qm
