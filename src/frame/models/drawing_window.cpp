// Brings up drawings.
#include "frame/models/drawing_window.h"

#include "frame/models/host_name.h"
#include "toolkit/status.h"
#include "toolkit/window.h"

namespace qm {

std::optional<int> DrawingWindow(std::wstring_view name) {
  auto host_name = HostName::From(name);
  int window = -1;
  if (!host_name || !Ok(ProObjectwindowCreate(host_name->name, PRO_DRAWING, &window))) {
    return std::nullopt;
  }
  return window < 0 ? std::nullopt : std::optional(window);
}

ProError DisplayDrawing(ProMdl drawing, std::wstring_view name) {
  const auto window = DrawingWindow(name);
  if (!window) return PRO_TK_GENERAL_ERROR;
  const ProError status = ProMdlDisplay(drawing);
  return Ok(status) ? ProWindowActivate(*window) : status;
}

ProError MakeCurrent(int window) {
  const ProError status = ProWindowCurrentSet(window);
  return Ok(status) ? ProWindowActivate(window) : status;
}

}  // namespace qm
