// Showing and hiding of components, shared by the commands that do nothing else.
#pragma once

#include "frame/models/opening.h"
#include "toolkit/assembly.h"

namespace qm {

// The host's hide state of one component feature, as its own Hide and Unhide commands set it. A
// failure is passed over and logged.
void HideComponent(ProFeature* component);
void ShowComponent(ProFeature* component);

void ShowComponents(const ComponentList& components);

// Makes the new state visible: all windows and the model tree, once at the end of a command, which
// lets go of its components before.
void RefreshDisplay(Opening* opening);

// Shown when there is nothing to show or hide.
inline constexpr wchar_t kNoComponents[] = L"当前模型中没有合适的子零/组件";

}  // namespace qm
