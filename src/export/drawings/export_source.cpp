// Drawings by the names of models.
#include "export/drawings/export_source.h"

#include <unordered_set>

#include "frame/models/component_list.h"
#include "frame/models/current_assembly.h"
#include "frame/models/handle_index.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"
#include "frame/models/retrieve.h"
#include "frame/text/letter_case.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// Most components have none.
bool HasDrawing(const std::wstring& name) {
  return RetrieveIfThere(name, PRO_MDL_DRAWING) != nullptr;
}

class DrawingList {
 public:
  void AddOf(ProMdl model) {
    if (model == nullptr || !models_.Insert(model).second) return;
    auto name = ModelName(model);
    if (!name) {
      ++list_.left_out;
    } else if (met_.insert(LowerCased(*name)).second && HasDrawing(*name)) {
      list_.names.push_back(std::move(*name));
    }
  }
  void AddOf(const ComponentList& components) {
    for (int i = 0; i < components.size(); ++i) AddOf(components.model(i));
    list_.left_out += static_cast<long long>(components.left_out().size());
  }
  ListedDrawings Take() { return std::move(list_); }

 private:
  HandleIndex models_;
  std::unordered_set<std::wstring> met_;  // names in lower case
  ListedDrawings list_;
};

}  // namespace

std::optional<ListedDrawings> DrawingsOfCurrentModel() {
  const auto current = CurrentModelOrAssembly();
  if (!current) return std::nullopt;
  DrawingList drawings;
  if (current->type == PRO_MDL_PART) {
    drawings.AddOf(current->model);
    return drawings.Take();
  }
  if (current->type != PRO_MDL_ASSEMBLY) return std::nullopt;
  ComponentList components;
  if (Ok(CollectComponents(current->model, ComponentKind::kAll, &components))) {
    drawings.AddOf(components);
  } else {
    ShowNotCollected();
  }
  return drawings.Take();
}

}  // namespace qm
