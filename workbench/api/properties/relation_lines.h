// Which lines the host takes for relations.
#pragma once

#include "workbench/session/model.h"

namespace wb {

// Whether every line is empty, a comment, a word of control such as IF and ENDIF, or sets or
// compares something, with its brackets and quotes closed. Less than the host's own rules, and
// enough to have lines refused.
bool AreRelations(const RelationLines& lines);

}  // namespace wb
