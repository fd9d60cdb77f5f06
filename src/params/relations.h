// QmRelations: the dialog that writes relation lines into many models.
#pragma once

#include "toolkit/types.h"

namespace qm {

ProError QmRelations();

}  // namespace qm
