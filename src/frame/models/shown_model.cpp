// Remembers a model by its name and displays it.
#include "frame/models/shown_model.h"

#include "frame/messages/run_log.h"
#include "frame/models/model_name.h"
#include "frame/models/retrieve.h"
#include "frame/text/letter_case.h"
#include "toolkit/status.h"

namespace qm {

ShownModel::ShownModel(const std::optional<CurrentModel>& current) : current_(current) {
  if (current_) name_ = ModelName(current_->model);
}

void ShownModel::Renamed(ProMdlType type, std::wstring_view before, std::wstring_view after) {
  if (!current_ || !name_ || current_->type != type || !EqualIgnoringCase(*name_, before)) return;
  name_ = std::wstring(after);
}

void ShownModel::ShowAgain() const {
  if (!current_) return;
  const ProMdl model = name_ ? RetrieveModel(*name_, current_->type) : current_->model;
  if (model == nullptr) return LogFailure("what was shown before is not shown again");
  const ProError status = ProMdlDisplay(model);
  if (!Ok(status)) LogFailure(model, "ProMdlDisplay", status);
}

}  // namespace qm
