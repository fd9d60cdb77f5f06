// Host functions of units and unit systems.
#include "workbench/session/units.h"

#include "workbench/host/arguments.h"

namespace wb {
namespace {

// How many bytes longer records are by the habit of it.
constexpr size_t kLongerBy = 8;
// Of the four units of a new system, where the mass or the force stands.
constexpr size_t kMassPlace = 1;

template <typename Record>
Record UnitRecord(const Call& call, const Model& owner, const std::string& name) {
  Record record = {};
  record.owner = owner.handle;
  call.CopyText(record.name, PRO_NAME_SIZE, name);
  return record;
}

struct SystemPlace {
  Model& model;
  const UnitSystem& system;
};

// A system of the model that its record names.
struct UnitSystemIn : RecordIn<ProUnitsystem> {
  explicit UnitSystemIn(ProUnitsystem* system) : RecordIn(system, "unit system") {}
  SystemPlace Look(const Call& call) const {
    const ProUnitsystem& given = RecordIn::Look(call);
    Model& model = call.SolidAt(given.owner);
    const std::string name = call.Text(given.name, PRO_NAME_SIZE, "unit system's name");
    const UnitSystem* const system = FindUnitSystem(model.solid(), name);
    if (system == nullptr) call.Fail(model.id.Text() + " has no unit system \"" + name + "\"");
    return {model, *system};
  }
};

UnitSystemType Exchanged(UnitSystemType type) {
  return type == UnitSystemType::kMassLengthTime ? UnitSystemType::kForceLengthTime
                                                 : UnitSystemType::kMassLengthTime;
}

UnitSystemType TypeFor(const Call& call, UnitSystemType type) {
  return call.host.habits.unit_system_types_are_exchanged ? Exchanged(type) : type;
}

std::vector<const UnitSystem*> SystemsOf(const SolidContent& solid) {
  std::vector<const UnitSystem*> systems;
  for (const UnitSystem& system : PredefinedUnitSystems()) systems.push_back(&system);
  for (const UnitSystem& system : solid.unit_systems) systems.push_back(&system);
  return systems;
}

ProUnitsystem* GiveSystems(const Call& call, const Model& model) {
  const auto systems = SystemsOf(model.solid());
  const size_t size =
      sizeof(ProUnitsystem) + (call.host.habits.unit_records_are_longer ? kLongerBy : 0);
  auto* const array =
      static_cast<char*>(NewArray(call, static_cast<int>(systems.size()), static_cast<int>(size)));
  for (size_t i = 0; i < systems.size(); ++i) {
    const auto record = UnitRecord<ProUnitsystem>(call, model, systems[i]->name);
    std::memcpy(array + i * size, &record, sizeof(record));
  }
  return reinterpret_cast<ProUnitsystem*>(array);
}

// The names of the units that make a system; a misuse where they are not units of its model.
std::vector<std::string> UnitNames(const Call& call, const Model& model,
                                   std::span<const ProUnititem> units) {
  std::vector<std::string> names;
  for (const ProUnititem& unit : units) {
    if (unit.owner != model.handle) call.Fail("a unit of another model");
    names.push_back(call.Text(unit.name, PRO_NAME_SIZE, "unit's name"));
  }
  constexpr size_t kUnitsOfSystem = 4;
  if (names.size() != kUnitsOfSystem) call.Fail("a unit system takes four units");
  return names;
}

bool FitsType(UnitSystemType type, const std::vector<std::string>& units) {
  const UnitKind mass =
      type == UnitSystemType::kMassLengthTime ? UnitKind::kMass : UnitKind::kForce;
  const UnitKind wanted[] = {UnitKind::kLength, mass, UnitKind::kTime, UnitKind::kTemperature};
  for (size_t i = 0; i < units.size(); ++i) {
    if (KindOfUnit(units[i]) != wanted[i]) return false;
  }
  return true;
}

bool HasSystem(const SolidContent& solid, const std::string& name) {
  return std::ranges::any_of(
      SystemsOf(solid), [&](const UnitSystem* system) { return EqualFolded(system->name, name); });
}

UnitConversion ConversionFor(const Call& call, ProUnitConvertType type) {
  if (type != PRO_UNITCONVERT_SAME_DIMS && type != PRO_UNITCONVERT_SAME_SIZE) {
    call.Fail("conversion " + std::to_string(static_cast<int>(type)));
  }
  const bool is_exchanged = call.host.habits.unit_conversions_are_exchanged;
  return (type == PRO_UNITCONVERT_SAME_SIZE) != is_exchanged ? UnitConversion::kSameSize
                                                             : UnitConversion::kSameDimensions;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProUnitInit(ProMdl model, ProName name, ProUnititem* unit) {
  return Crossing(__func__, SolidIn{{model}}, TextIn{name, PRO_NAME_SIZE, "unit"},
                  Out(unit, "unit place"))
      .Run([](const Call& call, const Model& owner, const std::string& wanted, ProUnititem& place) {
        if (!KindOfUnit(wanted)) return PRO_TK_E_NOT_FOUND;
        place = UnitRecord<ProUnititem>(call, owner, wanted);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMdlUnitsystemsCollect(ProMdl model, ProUnitsystem** systems) {
  return Crossing(__func__, SolidIn{{model}}, Out(systems, "systems place"))
      .Run([](const Call& call, const Model& from, ProUnitsystem*& place) {
        place = GiveSystems(call, from);
      });
}

ProError ProUnitsystemTypeGet(ProUnitsystem* system, ProUnitsystemType* type) {
  return Crossing(__func__, UnitSystemIn(system), Out(type, "type place"))
      .Run([](const Call& call, const SystemPlace& from, ProUnitsystemType& place) {
        place = static_cast<ProUnitsystemType>(TypeFor(call, from.system.type));
      });
}

ProError ProMdlUnitsystemCreate(ProMdl model, ProUnitsystemType type, ProName name,
                                ProUnititem* units, ProUnitsystem* created) {
  return Crossing(__func__, SolidIn{{model}}, type, TextIn{name, PRO_NAME_SIZE, "name"},
                  ArrayIn(units, "units"), Out(created, "system place"))
      .Run([](const Call& call, Model& to, ProUnitsystemType given, const std::string& wanted,
              std::span<ProUnititem> made_of, ProUnitsystem& place) {
        const std::vector<std::string> names = UnitNames(call, to, made_of);
        const UnitSystemType system_type = TypeFor(call, static_cast<UnitSystemType>(given));
        if (HasSystem(to.solid(), wanted)) return PRO_TK_E_FOUND;
        if (!FitsType(system_type, names)) return PRO_TK_INVALID_TYPE;
        to.solid().unit_systems.Add(
            {wanted, system_type, names[0], names[kMassPlace], names[2], names[3]});
        to.modified = true;
        place = UnitRecord<ProUnitsystem>(call, to, wanted);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProMdlPrincipalunitsystemGet(ProMdl model, ProUnitsystem* system) {
  return Crossing(__func__, SolidIn{{model}}, Out(system, "system place"))
      .Run([](const Call& call, const Model& from, ProUnitsystem& place) {
        place = UnitRecord<ProUnitsystem>(call, from, from.solid().units);
      });
}

ProError ProUnitsystemUnitGet(ProUnitsystem* system, ProUnitType type, ProUnititem* unit) {
  return Crossing(__func__, UnitSystemIn(system), type, Out(unit, "unit place"))
      .Run([](const Call& call, const SystemPlace& from, ProUnitType wanted, ProUnititem& place) {
        if (wanted != PRO_UNITTYPE_LENGTH) throw NotModelled{"units other than those of lengths"};
        place = UnitRecord<ProUnititem>(call, from.model, from.system.length);
      });
}

ProError ProMdlPrincipalunitsystemSet(ProMdl model, ProUnitsystem* system,
                                      ProUnitConvertType conversion, ProBoolean ignore_param_units,
                                      int regeneration_flags) {
  return Crossing(__func__, SolidIn{{model}}, UnitSystemIn(system), conversion, ignore_param_units,
                  regeneration_flags)
      .Run([](const Call& call, Model& to, const SystemPlace& wanted, ProUnitConvertType type,
              ProBoolean ignore, int flags) {
        if (&wanted.model != &to) call.Fail("a unit system of another model");
        if (ignore != PRO_B_TRUE || flags != kUnitRegenerationFlags) {
          throw NotModelled{"units with flags other than 1 and -1"};
        }
        ConvertUnits(to.solid(), wanted.system, ConversionFor(call, type));
        to.modified = true;
        return PRO_TK_NO_ERROR;
      });
}
