// Follows PRODUCT, PRODUCT_DEFINITION_FORMATION, PRODUCT_DEFINITION, PRODUCT_DEFINITION_SHAPE and
// SHAPE_DEFINITION_REPRESENTATION.
#include "workbench/step/step_definitions.h"

#include <algorithm>

#include "workbench/base/text.h"
#include "workbench/step/step_documents.h"

namespace wb {
namespace {

constexpr std::string_view kDefinition = "PRODUCT_DEFINITION";

// The last part of a path or address.
std::string BareName(std::string_view path) {
  path = path.substr(0, path.find('#'));
  const std::size_t slash = path.find_last_of("/\\");
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

}  // namespace

StepDefinitions::StepDefinitions(const StepFile& file, const StepCatalog& catalog)
    : file_(file), catalog_(catalog) {
  ReadDefinitions();
  if (definitions_.empty()) {
    throw StepError(file.file_name(), 0,
                    "the file holds no product (its schema is " +
                        (file.schema().empty() ? "not named" : file.schema()) + ")",
                    "export it from the CAD system as STEP AP203, AP214 or AP242");
  }
  MarkOthers();
  ReadShapes();
  SpreadShapes();
  NoteDocuments();
}

void StepDefinitions::ReadDefinitions() {
  std::vector<const StepRecord*> records = catalog_.Of(kDefinition);
  const auto& more = catalog_.Of("PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS");
  records.insert(records.end(), more.begin(), more.end());
  std::sort(records.begin(), records.end(),
            [](const auto* a, const auto* b) { return a->offset < b->offset; });
  records.erase(std::unique(records.begin(), records.end()), records.end());
  for (const StepRecord* record : records) {
    const StepRecord& formation = file_.Arguments(*record, kDefinition).Reference(2);
    const StepRecord& product =
        file_.Arguments(formation, "PRODUCT_DEFINITION_FORMATION").Reference(2);
    const StepArguments values = file_.Arguments(product, "PRODUCT");
    StepDefinition definition{record, &product, values.OptionalText(1), {}, {}};
    if (definition.name.empty()) definition.name = values.OptionalText(0);
    by_record_[record] = static_cast<int>(definitions_.size());
    definitions_.push_back(std::move(definition));
  }
}

// Documents and raw material are products too; their category, or for a document its context,
// tells.
void StepDefinitions::MarkOthers() {
  const auto documents = ProductsOf("document");
  const auto materials = ProductsOf("raw material");
  for (StepDefinition& definition : definitions_) {
    const StepRecord* context =
        file_.Arguments(*definition.record, kDefinition).OptionalReference(3);
    const std::string stage = context == nullptr || file_.TypeOf(*context).names.size() > 1
                                  ? std::string()
                                  : file_.Arguments(*context).OptionalText(0);
    definition.document = documents.count(definition.product) > 0 ||
                          stage.find("document definition") != std::string::npos;
    definition.raw_material = materials.count(definition.product) > 0;
  }
}

std::unordered_set<const StepRecord*> StepDefinitions::ProductsOf(std::string_view wanted) const {
  std::unordered_set<const StepRecord*> products;
  for (const StepRecord* category : catalog_.Of("PRODUCT_RELATED_PRODUCT_CATEGORY")) {
    const StepArguments values = file_.Arguments(*category);
    std::string name = FoldCase(values.OptionalText(0));
    std::ranges::replace(name, '_', ' ');
    if (name != wanted) continue;
    for (const StepRecord* product : values.References(2)) products.insert(product);
  }
  return products;
}

const StepRecord* StepDefinitions::SubjectOf(const StepRecord& shape) const {
  if (!file_.TypeOf(shape).Has("PRODUCT_DEFINITION_SHAPE")) return nullptr;
  return file_.Arguments(shape, "PROPERTY_DEFINITION").OptionalReference(2);
}

void StepDefinitions::ReadShapes() {
  for (const StepRecord* link : catalog_.Of("SHAPE_DEFINITION_REPRESENTATION")) {
    const StepArguments values = file_.Arguments(*link, "PROPERTY_DEFINITION_REPRESENTATION");
    const StepRecord* subject = SubjectOf(values.Reference(0));
    if (subject == nullptr) continue;
    const StepRecord& representation = values.Reference(1);
    const auto definition = by_record_.find(subject);
    if (definition == by_record_.end()) {
      usage_shapes_[subject].push_back(&representation);
      continue;
    }
    auto& own = definitions_[definition->second].representations;
    if (std::find(own.begin(), own.end(), &representation) != own.end()) continue;
    own.push_back(&representation);
    owners_[&representation].push_back(definition->second);
  }
}

// A plain SHAPE_REPRESENTATION_RELATIONSHIP says that two representations show the same shape,
// unless it places an occurrence. What belongs to one product never spreads to another.
void StepDefinitions::SpreadShapes() {
  std::unordered_set<const StepRecord*> placing;
  for (const StepRecord* link : catalog_.Of("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION")) {
    placing.insert(file_.Arguments(*link).OptionalReference(0));
  }
  std::unordered_map<const StepRecord*, Records> equals;
  for (const StepRecord* link : catalog_.Of("SHAPE_REPRESENTATION_RELATIONSHIP")) {
    if (placing.count(link) > 0) continue;
    if (file_.TypeOf(*link).Has("REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION")) continue;
    const StepArguments values = file_.Arguments(*link, "REPRESENTATION_RELATIONSHIP");
    const StepRecord& a = values.Reference(2);
    const StepRecord& b = values.Reference(3);
    equals[&a].push_back(&b);
    equals[&b].push_back(&a);
  }
  const auto roots = owners_;
  for (int i = 0; i < static_cast<int>(definitions_.size()); ++i) {
    auto& reached = definitions_[i].representations;
    std::unordered_set<const StepRecord*> seen(reached.begin(), reached.end());
    for (std::size_t at = 0; at < reached.size(); ++at) {
      const auto links = equals.find(reached[at]);
      if (links == equals.end()) continue;
      for (const StepRecord* other : links->second) {
        if (roots.count(other) > 0 || !seen.insert(other).second) continue;
        reached.push_back(other);
        owners_[other].push_back(i);
      }
    }
  }
}

int StepDefinitions::OwnerOf(const StepRecord& representation) const {
  const auto found = owners_.find(&representation);
  return found == owners_.end() ? -1 : found->second.front();
}

bool StepDefinitions::Owns(int definition, const StepRecord& representation) const {
  const auto found = owners_.find(&representation);
  return found != owners_.end() &&
         std::find(found->second.begin(), found->second.end(), definition) != found->second.end();
}

std::vector<const StepRecord*> StepDefinitions::RepresentationsOfUsage(
    const StepRecord& usage) const {
  const auto found = usage_shapes_.find(&usage);
  return found == usage_shapes_.end() ? Records() : found->second;
}

int StepDefinitions::AddOutside(const std::string& key, const std::string& name,
                                const std::string& place) {
  const auto [known, added] = outside_.try_emplace(key, static_cast<int>(definitions_.size()));
  if (added) {
    definitions_.push_back({nullptr, nullptr, name, place, {}});
    notes_.push_back(name + ": lies in " + (place.empty() ? "another file" : place) +
                     ", which is not read");
  }
  return known->second;
}

int StepDefinitions::Resolve(const StepRecord& from, const StepArguments& values,
                             std::size_t index) {
  const StepValue& value = values.At(index);
  if (value.kind == StepValue::Kind::kReference && file_.Find(value.reference) == nullptr) {
    const std::string_view uri = file_.ExternalUri(value.reference);
    if (!uri.empty()) {
      const std::string place = BareName(uri);
      const std::string stem = place.substr(0, place.find_last_of('.'));
      return AddOutside(std::string(uri), stem.empty() ? std::string(uri) : stem, place);
    }
  }
  const StepRecord* target = &values.Reference(index);
  for (int i = 0; i < 8 && file_.TypeOf(*target).Has("PRODUCT_DEFINITION_OCCURRENCE"); ++i) {
    target = &file_.Arguments(*target, "PRODUCT_DEFINITION_OCCURRENCE").Reference(3);
  }
  const auto found = by_record_.find(target);
  if (found != by_record_.end()) return found->second;
  const StepType& type = file_.TypeOf(*target);
  if (type.names.size() == 1 && type.names[0].starts_with("PRODUCT_DEFINITION_REFERENCE")) {
    const std::string name = file_.Arguments(*target).OptionalText(1);
    return AddOutside("#" + std::to_string(target->id), name, {});
  }
  file_.Fail(from, "names #" + std::to_string(target->id) + " (" + file_.TypeName(*target) +
                       ") where a product definition is due");
}

std::vector<int> StepDefinitions::Models() const {
  std::unordered_map<const StepRecord*, int> chosen;  // products that have a model already
  for (const StepDefinition& definition : definitions_) {
    if (definition.used || !definition.representations.empty()) ++chosen[definition.product];
  }
  std::vector<int> models;
  for (int i = 0; i < static_cast<int>(definitions_.size()); ++i) {
    const StepDefinition& definition = definitions_[i];
    const bool counts = definition.used || !definition.representations.empty();
    if (!definition.used && (definition.document || definition.raw_material)) continue;
    if (counts || chosen[definition.product]++ == 0) models.push_back(i);
  }
  return models;
}

int StepDefinitions::DefinitionOf(const StepRecord& record) const {
  const StepRecord* subject = SubjectOf(record);
  const auto found = by_record_.find(subject != nullptr ? subject : &record);
  return found != by_record_.end() ? found->second : OwnerOf(record);
}

void StepDefinitions::NoteDocuments() {
  for (const StepDocumentUse& use : ReadStepDocumentUses(file_, catalog_)) {
    const int definition = DefinitionOf(*use.item);
    std::string whose = "the file";
    if (definition >= 0) {
      whose = definitions_[definition].name;
      definitions_[definition].other_file = BareName(use.place);
    }
    notes_.push_back(whose + ": refers to " + use.place + ", which is not read");
  }
}

}  // namespace wb
