// The tables of facts. A new fact of a record is a member there and a row here.
#include "workbench/session/model_facts.h"

#include "workbench/base/text.h"
#include "workbench/session/fact_traits.h"

namespace wb {

template <>
std::span<const EnumerationWord<FeatureStatus>> WordsOf() {
  static constexpr EnumerationWord<FeatureStatus> kWords[] = {
      {FeatureStatus::kActive, "active"},
      {FeatureStatus::kInactive, "inactive"},
      {FeatureStatus::kFamilyTableSuppressed, "family_table_suppressed"},
      {FeatureStatus::kSimplifiedRepSuppressed, "simplified_rep_suppressed"},
      {FeatureStatus::kProgramSuppressed, "program_suppressed"},
      {FeatureStatus::kSuppressed, "suppressed"},
      {FeatureStatus::kUnregenerated, "unregenerated"},
  };
  return kWords;
}

namespace {

// A fact of a feature's component part, which only components have.
template <auto Member>
constexpr FactRow ComponentFact(const char* name) {
  using Held = typename MemberOf<decltype(Member)>::Held;
  return {name,
          [](const void* record) {
            const auto& component = static_cast<const Feature*>(record)->component;
            return component ? FactTraits<Held>::Get(*component.*Member) : FactValue();
          },
          [](void* record, const FactValue& value) {
            auto& component = static_cast<Feature*>(record)->component;
            if (!component) component.emplace();
            *component.*Member = FactTraits<Held>::From(value);
          }};
}

// The type decides what its value is read as, so that it stands first.
FactValue ParameterType(const void* record) {
  return std::string(ParameterTypeWord(static_cast<const Parameter*>(record)->value));
}

void SetParameterType(void* record, const FactValue& value) {
  static const ParameterValue kPlain[] = {0.0, std::string(), 0, false};
  ParameterValue& held = static_cast<Parameter*>(record)->value;
  for (const ParameterValue& plain : kPlain) {
    if (value == FactValue(std::string(ParameterTypeWord(plain)))) {
      held = plain;
      return;
    }
  }
  RefuseFact(value, "one of real, string, integer, yes_no");
}

FactValue ParameterFact(const void* record) {
  return std::visit([](const auto& value) { return FactValue(value); },
                    static_cast<const Parameter*>(record)->value);
}

void SetParameterFact(void* record, const FactValue& value) {
  std::visit(
      [&](auto& held) { held = FactTraits<std::remove_cvref_t<decltype(held)>>::From(value); },
      static_cast<Parameter*>(record)->value);
}

}  // namespace

template <>
const RecordType& RecordTypeOf<Parameter>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Parameter::name>("name", InFile::kRequired),
      {"type", &ParameterType, &SetParameterType, InFile::kRequired},
      {"value", &ParameterFact, &SetParameterFact, InFile::kRequired},
  };
  static const RecordType kType = TypeWith<Parameter>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<Feature>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Feature::id>("id", InFile::kRequired),
      Fact<&Feature::type>("type", InFile::kAlways),
      ComponentFact<&ComponentPart::link>("model"),
      Fact<&Feature::status>("status"),
      Fact<&Feature::visible>("visible"),
      Fact<&Feature::status_flags>("flags"),
      Fact<&Feature::hidden>("hidden"),
      ComponentFact<&ComponentPart::placement>("placement"),
  };
  static const RecordType kType = TypeWith<Feature>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<Surface>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Surface::id>("id", InFile::kRequired),
      Fact<&Surface::box, &Box::min>("min", InFile::kRequired),
      Fact<&Surface::box, &Box::max>("max", InFile::kRequired),
  };
  static const RecordType kType = TypeWith<Surface>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<SolidContent>() {
  static constexpr FactRow kFacts[] = {
      Fact<&SolidContent::sheet_metal>("sheet_metal"),
      Fact<&SolidContent::skeleton>("skeleton"),
  };
  static constexpr ListRow kLists[] = {
      List<&SolidContent::features>("features"),
      List<&SolidContent::surfaces>("surfaces"),
  };
  static const RecordType kType = TypeWith<SolidContent>(kFacts, kLists);
  return kType;
}

template <>
const RecordType& RecordTypeOf<ManufacturingContent>() {
  static constexpr FactRow kFacts[] = {Fact<&ManufacturingContent::assembly>("assembly")};
  static const RecordType kType = TypeWith<ManufacturingContent>(kFacts);
  return kType;
}

template <>
const RecordType& RecordTypeOf<Model>() {
  static constexpr FactRow kFacts[] = {
      Fact<&Model::note>("note"),
      Fact<&Model::view>("view"),
  };
  static constexpr ListRow kLists[] = {List<&Model::parameters>("parameters")};
  static const RecordType kType = TypeWith<Model>(kFacts, kLists);
  return kType;
}

std::array<RecordRef, 2> RecordsOf(Model& model) {
  const auto content = std::visit(
      [](auto& held) {
        return RecordRef{&held, &RecordTypeOf<std::remove_cvref_t<decltype(held)>>()};
      },
      model.content);
  return {RecordRef{&model, &RecordTypeOf<Model>()}, content};
}

namespace {

// Names the model in what is wrong with a path.
template <typename Use>
auto WithRecords(Model& model, Use use) {
  try {
    return use(RecordsOf(model));
  } catch (const FactError& error) {
    throw FactError(model.id.Text() + ": " + error.what());
  }
}

}  // namespace

FactPlace FindFact(Model& model, std::string_view path) {
  return WithRecords(model, [&](const auto& records) { return FindFact(records, path); });
}

void AddItem(Model& model, std::string_view path, NamedFacts facts) {
  WithRecords(model, [&](const auto& records) { AddItem(records, path, facts); });
}

size_t CountItems(Model& model, std::string_view path) {
  return WithRecords(model, [&](const auto& records) { return CountItems(records, path); });
}

std::vector<FactChange> ChangesBetween(const Model& before, const Model& after) {
  std::vector<FactChange> changes;
  const auto was = RecordsOf(const_cast<Model&>(before));
  const auto is = RecordsOf(const_cast<Model&>(after));
  for (size_t i = 0; i < was.size(); ++i) {
    CollectChanges(*was[i].type, was[i].record, is[i].record, "", changes);
  }
  return changes;
}

namespace {

void CollectFacts(const RecordType& type, void* record, const std::string& path,
                  std::map<std::string, std::string>* facts) {
  for (const FactRow& row : type.facts) (*facts)[path + row.name] = FactText(row.get(record));
  for (const ListRow& list : type.lists) {
    std::string& keys = (*facts)[path + list.name];
    for (size_t i = 0; i < list.size(record); ++i) {
      keys += list.key(record, i) + " ";
      CollectFacts(list.type(), list.at(record, i),
                   path + list.name + "/" + list.key(record, i) + "/", facts);
    }
  }
}

}  // namespace

std::map<std::string, std::string> FactsOf(const Model& model) {
  std::map<std::string, std::string> facts;
  for (const RecordRef& ref : RecordsOf(const_cast<Model&>(model))) {
    CollectFacts(*ref.type, ref.record, "", &facts);
  }
  return facts;
}

}  // namespace wb
