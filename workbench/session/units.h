// Unit systems of parts and assemblies, and what a change from one to another does.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/numbers.h"

namespace wb {

struct Model;
struct SolidContent;

// Values are the host's numbers.
enum class UnitSystemType {
  kMassLengthTime = PRO_UNITSYSTEM_MLT,
  kForceLengthTime = PRO_UNITSYSTEM_FLT,
};
enum class UnitConversion {
  kSameDimensions = PRO_UNITCONVERT_SAME_DIMS,  // the numbers stay, the model is scaled
  kSameSize = PRO_UNITCONVERT_SAME_SIZE,        // the numbers change, the model stays
};

enum class UnitKind { kLength, kMass, kForce, kTime, kTemperature };
// None for a unit that the host does not have.
std::optional<UnitKind> KindOfUnit(std::string_view unit);

struct UnitSystem {
  std::string name;
  UnitSystemType type = UnitSystemType::kMassLengthTime;
  std::string length = "mm";
  std::string mass = "kg";  // of a force-length-time system the force
  std::string time = "sec";
  std::string temperature = "C";
};

// Those that every model has.
std::span<const UnitSystem> PredefinedUnitSystems();
inline constexpr char kDefaultUnits[] = "Millimeter Newton Second (mmNs)";

// A predefined system or one of the model's own, by its exact name; null for none.
const UnitSystem* FindUnitSystem(const SolidContent& solid, std::string_view name);

// What a length in the inner model's units is multiplied by to be one in the outer model's. 1 for
// models that have no units.
double LengthRatio(const Model& inner, const Model& outer);

// Makes the system the principal one.
void ConvertUnits(SolidContent& solid, const UnitSystem& to, UnitConversion conversion);

}  // namespace wb
