// Finds, makes and sets unit systems.
#include "params/assign/unit_system.h"

#include <utility>
#include <vector>

#include "frame/messages/run_log.h"
#include "frame/text/fixed_text.h"
#include "frame/text/letter_case.h"
#include "params/assign/unit_rules.h"
#include "toolkit/owners.h"

namespace qm {
namespace {

// The model's systems. None, after a line in the log, where the host does not tell, or where its
// records are of another size than ours: then their owners are not the model.
std::vector<ProUnitsystem> SystemsOf(ProMdl model) {
  HostArray<ProUnitsystem> array;
  const ProError status = ProMdlUnitsystemsCollect(model, array.put());
  const int count = array.size();
  std::vector<ProUnitsystem> systems;
  for (int i = 0; i < count && array[i].owner == model; ++i) systems.push_back(array[i]);
  // No model is without any: seven come with the host.
  if (Ok(status) && count > 0 && static_cast<int>(systems.size()) == count) return systems;
  LogFailure(model, "ProMdlUnitsystemsCollect", Ok(status) ? PRO_TK_INVALID_PTR : status);
  return {};
}

std::optional<std::vector<ProUnititem>> OwnUnits(ProMdl model) {
  std::vector<ProUnititem> units;
  for (const wchar_t* const name : kOwnUnits) {
    ProUnititem unit = {};
    ProName buffer = {};
    if (!FillFixedText(name, buffer)) return std::nullopt;
    const ProError status = ProUnitInit(model, buffer, &unit);
    if (!Ok(status) || unit.owner != model) {
      LogFailure(model, "ProUnitInit", status);
      return std::nullopt;
    }
    units.push_back(unit);
  }
  return units;
}

}  // namespace

UnitSetter::UnitSetter(std::wstring system, ProUnitConvertType conversion)
    : system_(std::move(system)), conversion_(conversion) {}

bool UnitSetter::Set(ProMdl model) {
  return EqualIgnoringCase(system_, kOwnUnitSystem) ? SetOwn(model) : SetNamed(model);
}

bool UnitSetter::SetNamed(ProMdl model) {
  const std::vector<ProUnitsystem> systems = SystemsOf(model);
  bool is_found = systems.empty();
  bool is_set = false;
  for (const ProUnitsystem& system : systems) {
    if (!EqualIgnoringCase(FixedText(system.name), system_)) continue;
    is_found = true;
    is_set = MakePrincipal(model, system) || is_set;
  }
  if (!is_found) LogFailure(model, "ProMdlUnitsystemsCollect", PRO_TK_E_NOT_FOUND);
  return is_set;
}

bool UnitSetter::SetOwn(ProMdl model) {
  auto units = OwnUnits(model);
  ProName name = {};
  HostArray<ProUnititem> array;
  if (!units || !FillFixedText(kOwnUnitSystem, name)) return false;
  const ProError assigned = array.Assign(*units);
  if (!Ok(assigned)) {
    LogFailure(model, "ProArrayObjectAdd", assigned);
    return false;
  }
  ProUnitsystem created = {};
  const ProError status =
      ProMdlUnitsystemCreate(model, OwnType(model), name, array.get(), &created);
  if (Ok(status) && created.owner == model) return MakePrincipal(model, created);
  // Deliberately not the system of this name that may be there: its units may be others.
  LogFailure(model, "ProMdlUnitsystemCreate", status);
  return false;
}

bool UnitSetter::MakePrincipal(ProMdl model, ProUnitsystem system) const {
  const ProError status =
      ProMdlPrincipalunitsystemSet(model, &system, conversion_, PRO_B_TRUE, kUnitRegenerationFlags);
  if (!Ok(status)) LogFailure(model, "ProMdlPrincipalunitsystemSet", status);
  return Ok(status);
}

ProUnitsystemType UnitSetter::OwnType(ProMdl model) {
  if (own_type_) return *own_type_;
  for (ProUnitsystem& system : SystemsOf(model)) {
    auto type = static_cast<ProUnitsystemType>(-1);  // none of the host's
    if (!IsMassLengthTime(FixedText(system.name))) continue;
    if (EqualIgnoringCase(FixedText(system.name), kOwnUnitSystem)) continue;
    if (!Ok(ProUnitsystemTypeGet(&system, &type))) continue;
    if (type != PRO_UNITSYSTEM_MLT && type != PRO_UNITSYSTEM_FLT) continue;
    own_type_ = type;
    return type;
  }
  return PRO_UNITSYSTEM_MLT;
}

}  // namespace qm
