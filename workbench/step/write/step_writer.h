// A part or a whole assembly as one STEP file (AP214) that other programs open and `import` reads.
#pragma once

#include <string>
#include <string_view>

#include "workbench/session/model.h"

namespace wb {

// Each model is a product of its name, once, however often it is placed; its shape are the blocks
// around its surfaces (step_blocks.h). Components are those that are active and whose models are
// in session, each at its place; one that is turned inside out or scaled keeps that. An assembly
// without components is a part to whoever reads the file. `top` is a part or an assembly, `name`
// the file's own. The same model always gives the same text.
std::string StepTextOf(const Model& top, std::string_view name);

}  // namespace wb
