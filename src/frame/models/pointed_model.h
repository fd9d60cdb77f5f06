// The one model that a command on a single model is about: the current part, or what the user
// points at.
#pragma once

#include "toolkit/model.h"

namespace qm {

// The current model when it is a part; otherwise the model at the end of the one selection's path,
// or, when nothing is selected, of a pick for which the note `prompt` asks. Null, after a message
// when the preselection is to blame, when there is none.
ProMdl PointedModel(const char* prompt);

}  // namespace qm
