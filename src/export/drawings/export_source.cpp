// Drawings by the names of models.
#include "export/drawings/export_source.h"

#include <unordered_set>

#include "frame/messages/run_log.h"
#include "frame/models/component_list.h"
#include "frame/models/current_assembly.h"
#include "frame/models/handle_index.h"
#include "frame/models/host_name.h"
#include "frame/models/model_name.h"
#include "frame/models/opening.h"
#include "frame/text/letter_case.h"
#include "toolkit/status.h"

namespace qm {
namespace {

// Most components have no drawing: that there is none is no line in the log.
bool HasDrawing(const std::wstring& name) {
  auto host_name = RetrievalName::From(name);
  ProMdl drawing = nullptr;
  const ProError status =
      host_name ? ProMdlRetrieve(host_name->name, PRO_MDL_DRAWING, &drawing) : PRO_TK_LINE_TOO_LONG;
  if (Ok(status) && drawing != nullptr) return true;
  if (status != PRO_TK_E_NOT_FOUND) LogFailure(name, "ProMdlRetrieve", status);
  return false;
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
