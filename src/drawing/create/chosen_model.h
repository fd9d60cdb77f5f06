// The model that a drawing is made of: the one that is selected, or the current one.
#pragma once

#include <optional>

#include "toolkit/model.h"

namespace qm {

struct ChosenModel {
  ProMdl model = nullptr;
  const wchar_t* refusal = nullptr;  // why there is none; null also when the host does not tell
};

inline constexpr wchar_t kOnlyOne[] = L"当前模式只能选择1个元件";

// What may be selected.
enum class Selectable {
  kPartsAndAssemblies,  // nothing else
  kAll,                 // another item stands for the model that owns it
};

// The model of the one selected item; the current model when nothing is selected. A manufacturing
// model is itself.
ChosenModel ChooseModel(Selectable selectable);

// For a manufacturing model its assembly, for any other itself; null when the host does not tell.
ProMdl WithoutManufacturing(ProMdl model);

// Whatever is chosen, without manufacturing; null when there is none, and a refusal has been shown.
ProMdl ChooseModelToDraw();

}  // namespace qm
