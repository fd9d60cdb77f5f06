// The search for a parameter by its name.
#include "frame/models/parameter_lookup.h"

#include "toolkit/status.h"

namespace qm {

ProError FindParameter(ProModelitem* item, HostName& name, ProParameter* parameter) {
  const ProError status = ProParameterInit(item, name.name, parameter);
  const bool filled = parameter->owner.who.item.owner != nullptr;
  return Ok(status) && !filled ? PRO_TK_GENERAL_ERROR : status;
}

}  // namespace qm
