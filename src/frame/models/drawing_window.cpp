// Brings up drawings.
#include "frame/models/drawing_window.h"

#include <string>

#include "frame/messages/run_log.h"
#include "frame/models/host_name.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {
namespace {

// The answer; a failure is logged, since a drawing that is not brought up is one all the same.
ProError Logged(const char* function, ProError status) {
  if (!Ok(status)) LogFailure(std::string(function) + " answered " + StatusName(status));
  return status;
}

}  // namespace

std::optional<int> DrawingWindow(std::wstring_view name) {
  auto host_name = HostName::From(name);
  int window = -1;
  if (!host_name) return std::nullopt;
  const ProError status =
      Logged("ProObjectwindowCreate", ProObjectwindowCreate(host_name->name, PRO_DRAWING, &window));
  if (!Ok(status)) return std::nullopt;
  return window < 0 ? std::nullopt : std::optional(window);
}

ProError DisplayDrawing(ProMdl drawing, std::wstring_view name) {
  const auto window = DrawingWindow(name);
  if (!window) return PRO_TK_GENERAL_ERROR;
  const ProError status = ProMdlDisplay(drawing);
  return Ok(status) ? ProWindowActivate(*window) : status;
}

void ActivateWindow(int window) {
  Logged("ProWindowActivate", ProWindowActivate(window));
}

ProError MakeCurrent(int window) {
  const ProError status = Logged("ProWindowCurrentSet", ProWindowCurrentSet(window));
  return Ok(status) ? Logged("ProWindowActivate", ProWindowActivate(window)) : status;
}

}  // namespace qm
