// Documents are referred to by APPLIED_DOCUMENT_REFERENCE or by the definition itself; what file
// they are stands in DOCUMENT_FILE, in an external identification, or with the product that the
// document equals.
#include "workbench/step/step_documents.h"

#include <unordered_map>
#include <unordered_set>

namespace wb {
namespace {

constexpr std::string_view kIdentification = "APPLIED_EXTERNAL_IDENTIFICATION_ASSIGNMENT";
constexpr std::string_view kWithDocuments = "PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS";

class DocumentReader {
 public:
  DocumentReader(const StepFile& file, const StepCatalog& catalog)
      : file_(file), catalog_(catalog) {
    NameIdentified();
    NameFiles();
    NameEquivalents();
  }

  std::vector<StepDocumentUse> Read() {
    for (const StepRecord* link : catalog_.Of("APPLIED_DOCUMENT_REFERENCE")) {
      const StepArguments values = file_.Arguments(*link);
      for (const StepRecord* item : values.References(2)) Tell(*item, values.Reference(0));
    }
    // Definitions that stand for a document speak of it only when nobody refers to it.
    for (const StepRecord* definition : catalog_.Of(kWithDocuments)) {
      for (const StepRecord* document : DocumentsOf(*definition)) {
        if (told_.count(PlaceOf(*document)) == 0) Tell(*definition, *document);
      }
    }
    for (const StepRecord* link : catalog_.Of(kIdentification)) {
      for (const StepRecord* item : file_.Arguments(*link).References(3)) {
        if (told_.count(PlaceOf(*item)) == 0) Tell(*item, *item);
      }
    }
    return std::move(uses_);
  }

 private:
  std::vector<const StepRecord*> DocumentsOf(const StepRecord& definition) const {
    const StepArguments values = file_.Arguments(definition, kWithDocuments);
    return values.size() == 0 ? std::vector<const StepRecord*>()
                              : values.References(values.size() - 1);
  }

  std::string PlaceOf(const StepRecord& document) const {
    const auto place = places_.find(&document);
    return place == places_.end() ? std::string() : place->second;
  }

  void NameIdentified() {
    for (const StepRecord* link : catalog_.Of(kIdentification)) {
      const StepArguments values = file_.Arguments(*link);
      for (const StepRecord* item : values.References(3)) places_[item] = values.OptionalText(0);
    }
  }

  void NameFiles() {
    for (const StepRecord* document : catalog_.Of("DOCUMENT_FILE")) {
      std::string& place = places_[document];
      if (!place.empty()) continue;
      const StepArguments values = file_.Arguments(*document, "DOCUMENT");
      place = values.OptionalText(0);
      if (place.empty()) place = values.OptionalText(1);
    }
  }

  // A document under configuration control is a product: its definition names the file.
  void NameEquivalents() {
    std::unordered_map<const StepRecord*, std::string> by_product;  // or formation, or definition
    for (const StepRecord* definition : catalog_.Of(kWithDocuments)) {
      const auto documents = DocumentsOf(*definition);
      if (documents.empty()) continue;
      const std::string place = PlaceOf(*documents.front());
      const StepRecord& formation = file_.Arguments(*definition, "PRODUCT_DEFINITION").Reference(2);
      by_product[definition] = by_product[&formation] = place;
      by_product[file_.Arguments(formation, "PRODUCT_DEFINITION_FORMATION").OptionalReference(2)] =
          place;
    }
    for (const StepRecord* link : catalog_.Of("DOCUMENT_PRODUCT_EQUIVALENCE")) {
      const StepArguments values = file_.Arguments(*link);
      const auto place = by_product.find(values.OptionalReference(3));
      if (place != by_product.end()) places_[&values.Reference(2)] = place->second;
    }
  }

  void Tell(const StepRecord& item, const StepRecord& document) {
    const std::string place = PlaceOf(document);
    if (place.empty()) return;
    uses_.push_back({&item, place});
    told_.insert(place);
  }

  const StepFile& file_;
  const StepCatalog& catalog_;
  std::unordered_map<const StepRecord*, std::string> places_;  // by document
  std::vector<StepDocumentUse> uses_;
  std::unordered_set<std::string> told_;
};

}  // namespace

std::vector<StepDocumentUse> ReadStepDocumentUses(const StepFile& file,
                                                  const StepCatalog& catalog) {
  return DocumentReader(file, catalog).Read();
}

}  // namespace wb
