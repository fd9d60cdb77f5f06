// The products of a STEP file: which definitions stand for models, what they are called and which
// representations hold their shape.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "workbench/step/file/step_catalog.h"

namespace wb {

struct StepDefinition {
  const StepRecord* record;  // null for a product that lies in another file
  const StepRecord* product;
  std::string name;                                // UTF-8, as in the file
  std::string other_file;                          // where its shape lies, if the file says so
  std::vector<const StepRecord*> representations;  // its own ones first, then those that equal them
  bool used = false;                               // named by an occurrence
  bool document = false;                           // stands for a drawing or another file
  bool raw_material = false;                       // what a part is made from
};

class StepDefinitions {
 public:
  // Reads definitions and shapes; throws StepError when the file has no product.
  StepDefinitions(const StepFile& file, const StepCatalog& catalog);

  std::vector<StepDefinition>& all() { return definitions_; }
  const std::vector<StepDefinition>& all() const { return definitions_; }

  // The definition that value `index` of `from` names, also through an occurrence of it or into
  // another file; anything else there is an error at `from`.
  int Resolve(const StepRecord& from, const StepArguments& values, std::size_t index);
  // The first definition that `representation` belongs to, or -1.
  int OwnerOf(const StepRecord& representation) const;
  bool Owns(int definition, const StepRecord& representation) const;
  // Placement shapes of an occurrence, in files that link mapped items to occurrences.
  std::vector<const StepRecord*> RepresentationsOfUsage(const StepRecord& usage) const;
  // The occurrence or definition that a PRODUCT_DEFINITION_SHAPE speaks of, or null.
  const StepRecord* SubjectOf(const StepRecord& shape) const;
  // Definitions that become models: used ones, ones with a shape, and else the product's first;
  // documents and raw material never unless used.
  std::vector<int> Models() const;
  const std::vector<std::string>& notes() const { return notes_; }

 private:
  using Records = std::vector<const StepRecord*>;

  void ReadDefinitions();
  void MarkOthers();
  // Those of a category.
  std::unordered_set<const StepRecord*> ProductsOf(std::string_view category) const;
  void ReadShapes();
  void SpreadShapes();
  void NoteDocuments();
  int DefinitionOf(const StepRecord& record) const;
  int AddOutside(const std::string& key, const std::string& name, const std::string& place);

  const StepFile& file_;
  const StepCatalog& catalog_;
  std::vector<StepDefinition> definitions_;
  std::unordered_map<const StepRecord*, int> by_record_;
  std::unordered_map<std::string, int> outside_;
  std::unordered_map<const StepRecord*, std::vector<int>> owners_;  // by representation
  std::unordered_map<const StepRecord*, Records> usage_shapes_;
  std::vector<std::string> notes_;
};

}  // namespace wb
