// QmConfig: the dialog with every general setting of "QmConfig.ini".
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmConfig();

}  // namespace qm
