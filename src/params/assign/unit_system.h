// The principal unit system of a model through the host. What does not work is logged.
#pragma once

#include <optional>
#include <string>

#include "toolkit/model.h"
#include "toolkit/properties.h"

namespace qm {

// Makes systems the principal ones, model by model.
class UnitSetter {
 public:
  UnitSetter(std::wstring system, ProUnitConvertType conversion);

  // False when the model keeps its system: it lacks the named one, or the own one cannot be made,
  // which it cannot where there is one of its name.
  bool Set(ProMdl model);

 private:
  bool SetNamed(ProMdl model);
  bool SetOwn(ProMdl model);
  bool MakePrincipal(ProMdl model, ProUnitsystem system) const;
  // The host's number for systems of mass, length and time, as a predefined one has it.
  ProUnitsystemType OwnType(ProMdl model);

  std::wstring system_;
  ProUnitConvertType conversion_;
  std::optional<ProUnitsystemType> own_type_;
};

}  // namespace qm
