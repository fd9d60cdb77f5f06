// The tables of facts of parts and assemblies: surfaces, appearances, relations, units, materials.
#include "workbench/base/text.h"
#include "workbench/session/fact_traits.h"
#include "workbench/session/model_facts.h"

namespace wb {

template <>
std::span<const EnumerationWord<UnitSystemType>> WordsOf() {
  static constexpr EnumerationWord<UnitSystemType> kWords[] = {
      {UnitSystemType::kMassLengthTime, "mass_length_time"},
      {UnitSystemType::kForceLengthTime, "force_length_time"},
  };
  return kWords;
}

template <>
std::span<const EnumerationWord<RepAction>> WordsOf() {
  static constexpr EnumerationWord<RepAction> kWords[] = {
      {RepAction::kInclude, "include"},
      {RepAction::kExclude, "exclude"},
  };
  return kWords;
}

// A set of relations as one text, its lines parted by line breaks. "none" is no set.
template <>
struct FactTraits<std::optional<RelationLines>> {
  static FactValue Get(const std::optional<RelationLines>& held) {
    return held ? FactValue(Join("\n", *held)) : FactValue();
  }
  static std::optional<RelationLines> From(const FactValue& value) {
    const auto* const text = std::get_if<std::string>(&value);
    if (text == nullptr) RefuseFact(value, "lines parted by line breaks");
    if (*text == "none") return std::nullopt;
    RelationLines lines;
    for (size_t at = 0; at < text->size();) {
      const size_t end = std::min(text->find('\n', at), text->size());
      lines.push_back(text->substr(at, end - at));
      at = end + 1;
    }
    return lines;
  }
};

namespace {

// A fact of the appearance in a record's member `Place`. A record without one has no such fact; one
// that is set makes an appearance.
template <auto Place, auto Member>
constexpr FactRow AppearanceFact(const char* name) {
  using Record = typename MemberOf<decltype(Place)>::Owner;
  using Held = typename MemberOf<decltype(Member)>::Held;
  return {name,
          [](const void* record) {
            const auto& appearance = static_cast<const Record*>(record)->*Place;
            return appearance ? FactTraits<Held>::Get(*appearance.*Member) : FactValue();
          },
          [](void* record, const FactValue& value) {
            auto& appearance = static_cast<Record*>(record)->*Place;
            // A script's text for a fact that is not there yet.
            const auto* const text = std::get_if<std::string>(&value);
            const FactValue typed =
                text == nullptr ? value
                                : ParseFact(*text, FactTraits<Held>::Get(Appearance().*Member));
            const Held held = FactTraits<Held>::From(typed);
            if (!appearance) appearance.emplace();
            *appearance.*Member = held;
          }};
}

// Whether there is an appearance at all; "no" takes it away.
template <auto Place>
constexpr FactRow HasAppearance() {
  using Record = typename MemberOf<decltype(Place)>::Owner;
  return {"appearance",
          [](const void* record) {
            return FactValue((static_cast<const Record*>(record)->*Place).has_value());
          },
          [](void* record, const FactValue& value) {
            auto& appearance = static_cast<Record*>(record)->*Place;
            if (!FactTraits<bool>::From(value)) return appearance.reset();
            if (!appearance) appearance.emplace();
          }};
}

#define WB_APPEARANCE_FACTS(place)                                              \
  HasAppearance<place>(), AppearanceFact<place, &Appearance::colour>("colour"), \
      AppearanceFact<place, &Appearance::transparency>("transparency"),         \
      AppearanceFact<place, &Appearance::ambient>("ambient"),                   \
      AppearanceFact<place, &Appearance::diffuse>("diffuse"),                   \
      AppearanceFact<place, &Appearance::highlight>("highlight"),               \
      AppearanceFact<place, &Appearance::shininess>("shininess"),               \
      AppearanceFact<place, &Appearance::highlight_colour>("highlight_colour"), \
      AppearanceFact<place, &Appearance::reflection>("reflection"),             \
      AppearanceFact<place, &Appearance::name>("appearance_name"),              \
      AppearanceFact<place, &Appearance::finish>("finish")

}  // namespace

template <>
const RecordType& RecordTypeOf<Surface>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Surface::id>("id", InFile::kRequired),
      Fact<&Surface::box, &Box::min>("min", InFile::kRequired),
      Fact<&Surface::box, &Box::max>("max", InFile::kRequired),
      WB_APPEARANCE_FACTS(&Surface::appearance),
  };
  static const RecordType kType = TypeWith<Surface>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<SolidDimension>() {
  static constexpr FactRow kFacts[] = {
      Fact<&SolidDimension::id>("id", InFile::kRequired),
      Fact<&SolidDimension::value>("value", InFile::kRequired),
  };
  static const RecordType kType = TypeWith<SolidDimension>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<UnitSystem>() {
  static constexpr FactRow kFacts[] = {
      Fact<&UnitSystem::name>("name", InFile::kRequired),
      Fact<&UnitSystem::type>("type"),
      Fact<&UnitSystem::length>("length"),
      Fact<&UnitSystem::mass>("mass"),
      Fact<&UnitSystem::time>("time"),
      Fact<&UnitSystem::temperature>("temperature"),
  };
  static const RecordType kType = TypeWith<UnitSystem>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<Material>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Material::name>("name", InFile::kRequired),
      Fact<&Material::text>("text"),
  };
  static const RecordType kType = TypeWith<Material>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<FamilyColumn>() {
  static constexpr FactRow kFacts[] = {Fact<&FamilyColumn::name>("name", InFile::kRequired)};
  static const RecordType kType = TypeWith<FamilyColumn>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<FamilyInstance>() {
  static constexpr FactRow kFacts[] = {Fact<&FamilyInstance::name>("name", InFile::kRequired)};
  static constexpr ListRow kLists[] = {List<&FamilyInstance::cells>("cells")};
  static const RecordType kType = TypeWith<FamilyInstance>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<RepItem>() {
  static constexpr FactRow kFacts[] = {
      Fact<&RepItem::path>("path", InFile::kAlways),
      Fact<&RepItem::component>("component", InFile::kRequired),
      Fact<&RepItem::action>("action", InFile::kRequired),
  };
  static const RecordType kType = TypeWith<RepItem>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<SimplifiedRep>() {
  static constexpr FactRow kFacts[] = {
      Fact<&SimplifiedRep::name>("name", InFile::kRequired),
      Fact<&SimplifiedRep::action>("action", InFile::kAlways),
  };
  static constexpr ListRow kLists[] = {List<&SimplifiedRep::items>("items")};
  static const RecordType kType = TypeWith<SimplifiedRep>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<SolidContent>() {
  static constexpr FactRow kFacts[] = {
      Fact<&SolidContent::sheet_metal>("sheet_metal"),
      Fact<&SolidContent::skeleton>("skeleton"),
      WB_APPEARANCE_FACTS(&SolidContent::appearance),
      Fact<&SolidContent::relations>("relations"),
      Fact<&SolidContent::post_relations>("post_relations"),
      Fact<&SolidContent::units>("units"),
      Fact<&SolidContent::material>("material"),
      Fact<&SolidContent::bend_table>("bend_table"),
      Fact<&SolidContent::bend_table_text>("bend_table_text"),
      Fact<&SolidContent::generic>("generic"),
      Fact<&SolidContent::active_rep>("active_rep"),
  };
  static constexpr ListRow kLists[] = {
      List<&SolidContent::features>("features"),
      List<&SolidContent::surfaces>("surfaces"),
      List<&SolidContent::coordinate_systems>("coordinate_systems"),
      List<&SolidContent::dimensions>("dimensions"),
      List<&SolidContent::unit_systems>("unit_systems"),
      List<&SolidContent::materials>("materials"),
      List<&SolidContent::family_columns>("family_columns"),
      List<&SolidContent::family_instances>("family_instances"),
      List<&SolidContent::reps>("reps"),
  };
  static const RecordType kType = TypeWith<SolidContent>(kFacts, kLists);
  return kType;
}

#undef WB_APPEARANCE_FACTS

}  // namespace wb
