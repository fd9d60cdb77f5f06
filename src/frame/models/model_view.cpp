// Reads and writes views of windows.
#include "frame/models/model_view.h"

#include <cstring>
#include <string>

#include "frame/geometry/normal_view_rules.h"
#include "frame/messages/run_log.h"
#include "toolkit/status.h"
#include "toolkit/view.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// The view that the window shows, whatever drawing it may be.
constexpr ProView kCurrentView = nullptr;

void LogStatus(const char* function, ProError status) {
  LogEvent(std::string(function) + " answered " + StatusName(status));
}

}  // namespace

std::optional<Matrix> ReadView(ProMdl model) {
  Matrix view;
  const ProError status = ProViewMatrixGet(model, kCurrentView, view.rows);
  if (Ok(status)) return view;
  LogStatus("ProViewMatrixGet", status);
  return std::nullopt;
}

ProError WriteView(ProMdl model, const Matrix& view) {
  Matrix copy = view;
  return ProViewMatrixSet(model, kCurrentView, copy.rows);
}

void RestoreView(ProMdl model, const Matrix& view) {
  ProError status = WriteView(model, view);
  if (Ok(status)) return;
  if (auto unit = Normalised(view)) {
    std::memcpy(unit->rows[kAxisCount], view.rows[kAxisCount], sizeof(view.rows[kAxisCount]));
    status = WriteView(model, *unit);
  }
  if (!Ok(status)) LogStatus("ProViewMatrixSet of the former view", status);
}

ProError SnapView(ProMdl model) {
  const auto view = ReadView(model);
  if (!view) return PRO_TK_GENERAL_ERROR;
  const auto snapped = NormalView(*view);
  if (!snapped) return PRO_TK_INVALID_MATRIX;
  const ProError status = WriteView(model, *snapped);
  ProWindowRepaint(PRO_VALUE_UNUSED);
  return status;
}

}  // namespace qm
